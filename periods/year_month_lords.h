// The lord of the cycle year, who walks round the grid with the age, and the lords of its
// months.
#pragma once

namespace navarun {

class Program;

/// Works the lord of the year out and moves his name to the cell of the age.
void seigneur_annee(Program& program);

/// Fills the twelve months of the cycle year, from the cell of the age on, and marks the month
/// in progress where today lies in that year.
void Seigneur_Mois(Program& program);

/// Takes the year shown over from the caption of the cycle year's first day: `annee_defile` and
/// `date_annee_courante`.
void take_year_shown(Program& program);

/// A click on a month selects it.
void wire_year_month_lords(Program& program);

}  // namespace navarun
