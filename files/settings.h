// The settings file, with its deliberately unequal reader and writers, and the short names.
#pragma once

namespace navarun {

class Program;

/// Reads the settings file, or creates it with one field where it is missing. Every value of
/// the file lands in `couleur_kundali`, so that the last one wins and the short names do not
/// come back: the file is written with two fields and read with one.
void Fichier_config(Program& program);

/// Writes both settings.
void write_settings(Program& program);

/// The menu entry switches the short names of the lords.
void wire_settings(Program& program);

}  // namespace navarun
