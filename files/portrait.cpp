// Choosing and showing portraits.
#include "files/portrait.h"

#include <algorithm>
#include <variant>

#include "chart/palace_colours.h"
#include "core/code_page.h"
#include "core/dialogue.h"
#include "core/file_path.h"
#include "files/browser.h"
#include "files/durable_file.h"
#include "files/fitted_picture.h"
#include "files/folder_entries.h"
#include "files/folders.h"
#include "shell/image_store.h"
#include "shell/program.h"
#include "shell/screen/units.h"

namespace navarun {

namespace {

void back_to_ganesha(Program& program) {
    program.form1.Picture_PHOTO.Picture = picture::ganesha;
    program.consultation.fichier_photo = std::string{};
    couleur_Disk_Rouge_Vert(program);
}

// The pointer over an empty portrait names it, in the state itself: a record saved afterwards
// holds that name.
void name_portrait(Program& program) {
    auto& portrait = program.consultation.fichier_photo;
    auto const* const name = std::get_if<std::string>(&portrait);
    if (name != nullptr && name->empty()) portrait = "Seigneur Ganesha";
    auto const* const shown = std::get_if<std::string>(&portrait);
    program.form1.Picture_PHOTO.ToolTipText =
        shown != nullptr ? *shown : (std::get<bool>(portrait) ? "Vrai" : "Faux");
}

// Copies a picture to the portraits, under a name that outlives the code page of a record.
// @return that name
std::string copied_as_a_record_holds_it(Program& program, std::filesystem::path const& picture,
                                        std::string const& name) {
    std::string portable = fitted_to_code_page(name);
    std::ranges::replace_if(portable, is_refused_in_file_names, '_');
    auto const named = file_path(portable);
    return write_under_free_name(program, program.folders.dossier_image,
                                 path_text(named.stem()), path_text(named.extension()),
                                 read_file(picture, name));
}

void take_dropped_file(Program& program, std::filesystem::path const& dropped) {
    std::string const dropped_name = path_text(dropped.filename());
    bool const picture =
        has_ending(dropped_name, portrait_endings) && kind_of(dropped) != EntryKind::folder;
    if (!picture) {
        transient_message(program, "Ce fichier n'est pas une image !", 2);
        return;
    }
    std::string const name = copied_as_a_record_holds_it(program, dropped, dropped_name);
    refresh_list(program);
    choose_portrait(program, name);
}

}  // namespace

Endings const portrait_endings{".gif", ".bmp", ".jpg", ".jpeg"};

void affiche_image_ajustee(Program& program, std::string const& name) {
    auto& box = program.form1.Picture_PHOTO;
    auto const path = program.path_of(program.folders.dossier_image + name);
    PictureSize const size = program.platform.picture_size(path);
    double const box_width = static_cast<double>(box.Width) / screen::twips_per_pixel;
    double const box_height = static_cast<double>(box.Height) / screen::twips_per_pixel;
    auto const place = fitted(box_width, box_height, size.width, size.height);
    box.paint({.path = path_text(path),
               .x = place.x,
               .y = place.y,
               .width = place.width,
               .height = place.height},
              name);
}

void choose_portrait(Program& program, std::string const& name) {
    // Under a name that its record cannot hold, the portrait would not be found again: of
    // foreign letters, or with the quote that ends a field.
    bool const holdable =
        fitted_to_code_page(name) == name && name.find('"') == std::string::npos;
    auto const path = program.path_of(program.folders.dossier_image + name);
    std::string const held = holdable ? name : copied_as_a_record_holds_it(program, path, name);
    // First: the record of a consultation that had to be rescued never names what cannot be
    // shown.
    affiche_image_ajustee(program, held);
    program.consultation.fichier_photo = held;
    couleur_Disk_Rouge_Vert(program);
    leave_image_mode(program);
    close_browser(program);
}

void wire_portrait(Program& program) {
    auto& box = program.form1.Picture_PHOTO;
    box.on_double_click = [&program] { back_to_ganesha(program); };
    box.on_mouse_move = [&program](screen::Mouse const&) { name_portrait(program); };
    box.on_file_drop = [&program](std::string const& path) {
        take_dropped_file(program, file_path(path));
    };
}

}  // namespace navarun
