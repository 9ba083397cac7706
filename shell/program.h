// The program: its state, its windows and what it asks of the outside. The operations of all
// subsystems work on it.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "chart/arrow_values.h"
#include "core/consultation.h"
#include "core/file_path.h"
#include "files/browser_values.h"
#include "files/durable_file.h"
#include "files/folders.h"
#include "files/records.h"
#include "periods/period_values.h"
#include "print/print_values.h"
#include "readings/calendar_values.h"
#include "shell/a_propos.h"
#include "shell/fleche.h"
#include "shell/form1.h"
#include "shell/option_impression.h"
#include "shell/platform.h"
#include "shell/screen/screen.h"
#include "shell/screen/user.h"
#include "shell/small_windows.h"

namespace navarun {

inline constexpr std::string_view program_title = "N.A.V.A.R.U.N";

/// What is kept for the whole program, not for one person.
struct Settings {
    std::uint8_t couleur_kundali = 0;        // 0..3, the colour scheme
    std::uint8_t decalage_nom_seigneur = 0;  // 0 full names of the lords, 9 short ones
};

/// The colours that the scheme gives to the small windows.
struct SchemeColours {
    screen::Colour couleur_fond_fenetre;
    screen::Colour couleur_liste;
    screen::Colour couleur_titre_fenetre;
};

/// The values through which a question box is called.
struct Dialogue {
    std::string titre_dialogue;
    std::string texte_dialogue;
    std::uint8_t reponse_dialogue = 0;  // 1 OK, 2 Cancel
};

/// The reading of the initials, and the text looked up last.
struct NameReading {
    std::string texte_initiales;
    std::string texte_lettre;
};

/// What the date fields remember between two keys.
struct DateEntry {
    int nombre_touches = 0;  // digits typed since the last move of the focus
    /// The date and calendar for which weekday and numbers were last worked out.
    std::string weekday_of_date;
    bool weekday_of_julian = false;
};

class Program {
  public:
    /// @param application_folder  the folder of the running program; all files lie below it.
    Program(Platform& platform_, std::filesystem::path application_folder_);
    Program(Program const&) = delete;
    Program& operator=(Program const&) = delete;

    /// Brings the program up. Once, before any event.
    void start();

    /// Lets one event of the user in: runs `act`, and where it ends in a fatal error shows the
    /// report, then throws the error on to whoever runs the program.
    template <typename Act>
    void event(Act&& act) {
        try {
            std::forward<Act>(act)(user);
        } catch (FatalError const& error) {
            report(error);
            throw;
        }
    }

    /// The name of a lord as the grid shows it, in full or short.
    /// @param lord  1..9. With full names anything below ends the run with a fatal error; a
    ///              number above is a programming error.
    std::string_view name_of_lord(int lord) const;

    /// Where a path from the application folder on lies.
    std::filesystem::path path_of(std::string_view path) const {
        return application_folder / file_path(path);
    }

    Platform& platform;
    std::filesystem::path const application_folder;

    screen::Screen screen;
    screen::User user{screen};
    navarun::Form1 form1{screen};
    navarun::Fleche fleche{screen};
    navarun::Affiche_cycle affiche_cycle{screen};
    navarun::Choix_age choix_age{screen};
    navarun::FrmSeigneurJour frm_seigneur_jour{screen};
    navarun::Palais_du_destin palais_du_destin{screen};
    navarun::FrmCalend frm_calend{screen};
    navarun::A_propos a_propos{screen};
    navarun::Option_impression option_impression{screen};

    Consultation consultation;
    PeriodValues periods;
    Settings settings;
    Dialogue dialogue;
    DateEntry date_entry;
    Folders folders;
    RecordValues record_values;
    BrowserValues browser;
    NameReading name_reading;
    CalendarValues calendar;
    SchemeColours scheme_colours;
    ArrowValues arrow;
    PrintValues printing;
    FolderLock instance;
    std::array<std::string, 10> url_defaut;

  private:
    /// Once: an error inside a wait passes the waiting event too.
    void report(FatalError const& error);

    bool m_reported = false;
    bool m_started = false;
};

}  // namespace navarun
