// How a failed call of the operating system is told.
#pragma once

#include <string>

namespace navarun {

/// What was tried.
namespace attempt {

inline constexpr char const* reading = "La lecture du fichier";
inline constexpr char const* writing = "L'écriture du fichier";
inline constexpr char const* moving = "Le déplacement du fichier";
inline constexpr char const* deleting = "La suppression du fichier";

}  // namespace attempt

/// The reasons that every system knows.
namespace reason {

inline constexpr char const* disk_is_full = "Il n'y a plus de place sur le disque.";
inline constexpr char const* share_is_full = "Votre part du disque est pleine.";
inline constexpr char const* access_is_denied = "L'accès est refusé.";
inline constexpr char const* disk_is_protected = "Le disque est protégé contre l'écriture.";
inline constexpr char const* disk_has_failed = "Le disque a signalé une erreur.";
inline constexpr char const* file_is_missing = "Le fichier ou son dossier n'existe pas.";
inline constexpr char const* file_in_place_of_folder =
    "Un fichier se trouve à la place d'un dossier.";
inline constexpr char const* folder_in_place_of_file =
    "Un dossier se trouve à la place du fichier.";
inline constexpr char const* is_no_file = "Ce n'est pas un fichier.";
inline constexpr char const* name_is_too_long = "Le nom est trop long.";
inline constexpr char const* too_many_open_files = "Trop de fichiers sont ouverts.";

/// A reason of which the system gave the number alone.
std::string by_number(unsigned long number);

}  // namespace reason

/// Throws the FatalError of what was `attempted` on `file`, for `reason`.
[[noreturn]] void fail(char const* attempted, std::string const& file,
                       std::string const& reason);

}  // namespace navarun
