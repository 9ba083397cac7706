// Making the tree.
#include "files/folders.h"

#include <array>
#include <string_view>

#include "core/fatal_error.h"
#include "files/durable_file.h"
#include "shell/program.h"

namespace navarun {

namespace {

constexpr std::string_view ressources = "RESSOURCES/";
constexpr std::string_view data_1 = "DATA1/";
constexpr std::string_view image = "IMAGE/";
// In the order in which they are made; each is tested without its separator.
constexpr std::array<std::string_view, 3> made_folders{"DATA1", "DATA2", "IMAGE"};

}  // namespace

bool FichDoss_existe(std::filesystem::path const& path) {
    std::error_code unreadable;
    auto const status = std::filesystem::status(path, unreadable);
    return path.has_filename() ? std::filesystem::exists(status)
                               : std::filesystem::is_directory(status);
}

bool FileExists(std::filesystem::path const& path) {
    // The system would end the name at a zero byte, and find another file.
    if (path.native().find('\0') != std::string::npos) return false;
    std::error_code unreadable;
    auto const status = std::filesystem::status(path, unreadable);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool is_free(std::filesystem::path const& path, std::string const& shown_as) {
    std::error_code unreadable;
    auto const kind = std::filesystem::status(path, unreadable).type();
    if (kind == std::filesystem::file_type::not_found) return true;
    if (kind == std::filesystem::file_type::none) {
        throw FatalError{"L'écriture du fichier « " + shown_as + " » a échoué.",
                         "Ce qui porte peut-être déjà ce nom n'a pas pu être regardé."};
    }
    return false;
}

void cree_repertoire(Program& program) {
    program.folders.dossier_ressources = ressources;
    std::error_code not_looked_at;
    auto const root = program.path_of(program.folders.dossier_ressources);
    if (!FichDoss_existe(root)) std::filesystem::create_directories(root, not_looked_at);
    remove_unfinished_file(root);
    for (auto const name : made_folders) {
        auto const folder = root / name;
        if (!FichDoss_existe(folder))
            std::filesystem::create_directories(folder, not_looked_at);
        remove_unfinished_file(folder);
    }
}

void set_paths(Folders& folders) {
    auto const below = [&](std::string_view name) {
        return folders.dossier_ressources + std::string{name};
    };
    folders.dossier_image = below(image);
    folders.dossier_capture = below("CAPTURE/");
    folders.dossier_actif = below(data_1);
    folders.chemin_config = below("CONFIG.CFG");
    folders.chemin_internet = below("INTERNET.DAT");
}

}  // namespace navarun
