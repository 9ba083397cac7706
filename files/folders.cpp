// Making the tree.
#include "files/folders.h"

#include <array>
#include <string_view>

#include "files/durable_file.h"
#include "files/failed_file.h"
#include "files/folder_entries.h"
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
    auto const kind = kind_of(path);
    return path.has_filename() ? kind != EntryKind::nothing : kind == EntryKind::folder;
}

bool FileExists(std::filesystem::path const& path) {
    // The system would end the name at a zero byte, and find another file.
    if (path.native().find('\0') != path.native().npos) return false;
    return kind_of(path) == EntryKind::file;
}

bool is_free(std::filesystem::path const& path, std::string const& shown_as) {
    auto const nothing = nothing_at(path);
    if (!nothing) {
        fail(attempt::writing, shown_as,
             "Ce qui porte peut-être déjà ce nom n'a pas pu être regardé.");
    }
    return *nothing;
}

std::string write_under_free_name(Program& program, std::string const& folder,
                                  std::string const& stem, std::string const& extension,
                                  std::string_view bytes) {
    for (int number = 1;; ++number) {
        std::string name = stem;
        if (number > 1) name += " (" + std::to_string(number) + ")";
        name += extension;
        auto const path = program.path_of(folder + name);
        // Another program may be quicker than the look.
        if (is_free(path, name) && write_new_file(path, bytes, name)) return name;
    }
}

void cree_repertoire(Program& program) {
    program.folders.dossier_ressources = ressources;
    auto const root = program.path_of(program.folders.dossier_ressources);
    if (!FichDoss_existe(root)) make_folders(root);
    remove_unfinished_file(root);
    for (auto const name : made_folders) {
        auto const folder = root / name;
        if (!FichDoss_existe(folder)) make_folders(folder);
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
