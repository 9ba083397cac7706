// Wiring, start and the one place where a fatal error is told.
#include "shell/program.h"

#include "chart/arrow_dialog.h"
#include "chart/kundali.h"
#include "chart/palace_colours.h"
#include "core/birth_date_entry.h"
#include "core/generate.h"
#include "core/julian_mode.h"
#include "core/lords.h"
#include "core/reset.h"
#include "core/start_up.h"
#include "files/address_book.h"
#include "files/browser.h"
#include "files/portrait.h"
#include "files/records.h"
#include "files/rescue.h"
#include "files/settings.h"
#include "periods/age_chooser.h"
#include "periods/age_scroll.h"
#include "periods/current_period.h"
#include "periods/cycle_window.h"
#include "periods/partial_cycle.h"
#include "periods/year_month_lords.h"
#include "print/lords_listing.h"
#include "print/options.h"
#include "print/preview.h"
#include "print/report.h"
#include "readings/calendar_window.h"
#include "readings/destiny_palace.h"
#include "readings/lords_window.h"
#include "readings/personality_report.h"
#include "shell/about_box.h"
#include "shell/image_store.h"
#include "shell/spoken_names.h"
#include "shell/tool_menus.h"
#include "zodiac/solar_position.h"

namespace navarun {

Program::Program(Platform& platform_, std::filesystem::path application_folder_)
    : platform{platform_}, application_folder{std::move(application_folder_)} {
    wire_generate(*this);
    wire_start_up(*this);
    wire_birth_date_entry(*this);
    wire_julian_mode(*this);
    wire_solar_position(*this);
    wire_current_period(*this);
    wire_year_month_lords(*this);
    wire_age_scroll(*this);
    wire_partial_cycle(*this);
    wire_reset(*this);
    wire_settings(*this);
    wire_records(*this);
    wire_browser(*this);
    wire_portrait(*this);
    wire_address_book(*this);
    wire_cycle_window(*this);
    wire_age_chooser(*this);
    wire_destiny_palace(*this);
    wire_lords_window(*this);
    wire_calendar_window(*this);
    wire_personality_report(*this);
    wire_kundali(*this);
    wire_palace_colours(*this);
    wire_arrow_dialog(*this);
    wire_report(*this);
    wire_preview(*this);
    wire_print_options(*this);
    wire_lords_listing(*this);
    wire_tool_menus(*this);
    wire_about_box(*this);
    wire_spoken_names(*this);
}

void Program::start() {
    event([this](screen::User&) {
        Form_Load(*this);
        form1.Visible = true;
        screen.move_focus(form1.Text_prenom);
        m_started = true;
    });
}

std::string_view Program::name_of_lord(int lord) const {
    int const entry = lord - 1 + settings.decalage_nom_seigneur;
    if (entry < 0) {
        throw FatalError{"Le nom d'un seigneur a été demandé avant qu'aucun ne règne.",
                         "L'indice n'appartient pas à la sélection."};
    }
    return noms_seigneurs.at(static_cast<std::size_t>(entry));
}

void Program::report(FatalError const& error) {
    if (std::exchange(m_reported, true)) return;
    std::string text = error.what();
    bool const unsaved = form1.Command_Disk_Vert.Picture.get() == picture::unsaved;
    if (m_started && unsaved) text.append("\r\n\r\n").append(rescue_consultation(*this));
    text.append("\r\n\r\nN.A.V.A.R.U.N s'arrête.");
    platform.box(program_title, text, BoxButtons::ok);
}

}  // namespace navarun
