// The folder tree beside the program, and the files of fixed names in it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace navarun {

class Program;

/// Paths from the application folder on; folders end with the separator, so that a file name is
/// appended without one.
struct Folders {
    std::string dossier_ressources;
    std::string dossier_actif;
    std::string dossier_autre;
    std::string dossier_image;
    std::string dossier_capture;
    std::string chemin_config;
    std::string chemin_internet;
};

/// Whether the file system has an entry at `path`; with a closing separator, a folder.
bool FichDoss_existe(std::filesystem::path const& path);
/// Whether a file, not a folder, stands at `path`. An unreadable or missing path gives false.
bool FileExists(std::filesystem::path const& path);

/// Whether nothing stands at `path`, so that nothing is lost by a file written there. Throws
/// FatalError where the system cannot tell: what cannot be looked at is not free.
bool is_free(std::filesystem::path const& path, std::string const& shown_as);

/// Writes a new file into `folder`, a path below the program's: under the name `stem` and
/// `extension` or, where something stands there, the first free one of "stem (2)", "stem
/// (3)"... Throws FatalError as write_file does.
/// @return the name it has now
std::string write_under_free_name(Program& program, std::string const& folder,
                                  std::string const& stem, std::string const& extension,
                                  std::string_view bytes);

/// Makes the missing folders and removes what a killed run left in them. A folder that cannot
/// be made is not told: the first file in it will be.
void cree_repertoire(Program& program);

/// Sets the paths of the folders and files below the resource folder.
void set_paths(Folders& folders);

}  // namespace navarun
