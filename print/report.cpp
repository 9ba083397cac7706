// The page, section by section. A section leaves its font in force for the next.
#include "print/report.h"

#include <algorithm>
#include <utility>

#include "chart/kundali.h"
#include "core/text.h"
#include "periods/lord_circle.h"
#include "print/drawing_surface.h"
#include "print/options.h"
#include "print/page_title.h"
#include "print/report_layout.h"
#include "readings/destiny_palace.h"
#include "shell/program.h"
#include "shell/screen/units.h"

namespace navarun {

namespace {

using screen::PageSize;
using screen::Picture;

constexpr std::string_view arial = "Arial";
constexpr std::string_view arial_narrow = "Arial Narrow";
constexpr screen::Colour date_grey{0x606060};

// What texts stay left of, whatever the length of a name.
constexpr double frame_right = 7.78;
constexpr double identity_right = 6.85;
constexpr double lord_of_year_right = 2.03;
constexpr double year_right = 4.55;
constexpr double age_right = 6.23;
constexpr double gate_right = 7.58;
constexpr double gate_number = 7.3;

constexpr int note_lines = 10;
constexpr int note_line_characters = 101;

void set_font(DrawingSurface& page, std::string_view name, double size) {
    page.FontName = name;
    page.FontSize = size;
}

void stretched(DrawingSurface& page, std::string_view picture, double x, double y,
               PageSize size) {
    page.PaintPicture({.picture = Picture{picture}, .x = x, .y = y, .size = size, .file = {}});
}

void outlines(DrawingSurface& page) {
    page.Box(0.4, 0.9, 7.8, 2.1);
    page.Box(0.4, 2.2, 7.8, 8.9);
    page.Box(0.4, 9.0, 7.8, 11.2);
    page.Line(6.3, 2.2, 6.3, 8.9);
}

void title(Program const& program, DrawingSurface& page) {
    page.right_edge = frame_right;
    set_font(page, arial, 17);
    page.Print(2.3, 0.4, std::string{page_title});
    set_font(page, arial, 9);
    page.Print(3.15, 0.7, program.url_defaut.front());
    set_font(page, arial, 10);
    page.Print(5.85, 0.7, print_date(program.platform.today()));
}

// As it stands in its box: a file keeps its proportions there.
screen::PagePicture portrait(Program const& program) {
    constexpr double left = 6.921;
    constexpr double top = 0.9;
    constexpr PageSize size{0.88, 1.199};
    auto const& box = program.form1.Picture_PHOTO;
    screen::PagePicture picture{
        .picture = box.Picture.get(), .x = left, .y = top, .size = size, .file = {}};
    if (auto const& painted = box.painted()) {
        double const across = size.width * screen::twips_per_pixel / box.Width;
        double const down = size.height * screen::twips_per_pixel / box.Height;
        picture.file = {.path = painted->path,
                        .x = left + painted->x * across,
                        .y = top + painted->y * down,
                        .size = {painted->width * across, painted->height * down}};
    }
    return picture;
}

// How long the lord named by a caption, in full or short, rules; 0 for any other text.
int years_of_lord(std::string_view caption) {
    auto const row = std::ranges::find_if(circle, [&](CircleRow const& entry) {
        auto const& lord = row_of(entry.lord);
        return caption == lord.name || caption == lord.short_name;
    });
    return row == circle.end() ? 0 : row->years;
}

std::string birth_line(Program const& program) {
    auto const& form = program.form1;
    // In the Julian calendar the blanks leave room for its mark.
    std::string line = form.Mnu_Julien.Checked ? "Naissance :     " : "Naissance : ";
    line += form.Label_jourdeSemaine.Caption.get() + "  ";
    line += program.consultation.birth.date_naissance() + " - ";
    return line + form.Label_dinanka_Purnanka.Caption.get() + ".";
}

std::string sign_line(Form1 const& form) {
    return "Surya Natal : " + form.Label_zodiac.Caption.get() + " - Nakshatra :" + "  N°" +
           form.Label_nomNakshatra.Caption.get() + " - " + form.Label_Nak.Caption.get() + ".";
}

// Empty where the date of the period is no date.
std::optional<std::string> cycle_line(Program const& program) {
    auto const& form = program.form1;
    int const cell = program.consultation.colonne_dasha;
    auto const& caption = form.Label_DashaDate(cell).Caption.get();
    auto const start = read_date(caption);
    if (!start) return {};
    int const years = years_of_lord(form.Label_Dasha(cell).Caption.get());
    return "Seigneur du G.cycle: " + form.Label_Lal_Kitab.Caption.get() + " " + caption + "- " +
           write_date(add_years(*start, years)) + ".";
}

std::optional<std::string> year_line(Form1 const& form) {
    auto const& caption = form.Label_anneedefile.Caption.get();
    auto const start = read_date(caption);
    if (!start) return {};
    return caption + " - " + write_date(add_years(*start, 1));
}

// False where a date is missing.
bool identity(Program const& program, DrawingSurface& page) {
    auto const& form = program.form1;
    int const age = program.consultation.age_courant;
    page.right_edge = identity_right;
    set_font(page, arial, 16);
    page.Print(0.5, 0.96, form.Text_prenom.Text.get() + "  " + form.Text_nom.Text.get());
    page.Box(0.43, 0.93, 6.89, 1.25);
    page.Box(0.43, 1.28, 6.89, 2.07);
    page.FontSize = 14;
    page.right_edge = age_right;
    page.Print(5.2, 2.32, std::to_string(age) + (age == 1 ? " an" : " ans"));
    page.right_edge = identity_right;
    set_font(page, arial, 14);
    if (form.Mnu_Julien.Checked) {
        page.PaintPicture({.picture = form.Image_cal_Julien.Picture.get(),
                           .x = 1.55,
                           .y = 1.33,
                           .size = calendar_mark_size,
                           .natural = true,
                           .file = {}});
    }
    page.Print(0.5, 1.32, birth_line(program));
    page.Print(0.5, 1.55, sign_line(form));
    auto const cycle = cycle_line(program);
    if (!cycle) return false;
    page.Print(0.5, 1.79, *cycle);
    auto const year = year_line(form);
    if (!year) return false;
    page.right_edge = year_right;
    page.Print(2.29, 2.32, *year);
    return true;
}

// Frames of the lord of the year, the year and the age.
void year_frames(DrawingSurface& page) {
    page.Box(0.44, 2.24, 2.05, 2.62);
    page.Box(2.1, 2.24, 4.57, 2.62);
    page.Box(4.62, 2.24, 6.25, 2.62);
    page.Line(0.4, 2.66, 6.3, 2.66);
}

void chart(Program const& program, DrawingSurface& page) {
    stretched(page, "Picture_NoirBlanc", 0.5, 3, {5.67, 5.5});
    int const scheme = program.settings.couleur_kundali;
    bool const with_aum = scheme == 1 || scheme == 3;
    if (with_aum) stretched(page, "Image_AUM", 2.25, 4.64, {2.27, 2.27});
}

void tri_deva_marks(Program& program, DrawingSurface& page) {
    auto const& periods = program.periods;
    if (program.printing.imprime_tri_deva && !periods.genre_trideva.empty()) {
        Picture const mark{"ImageTriDeva_NB", periods.genre_trideva == "C" ? 1 : 2};
        for (int i = 0; i < periods.nombre_tridevas; ++i) {
            int const cell = periods.cellules_tridevas[static_cast<std::size_t>(i)];
            auto const& place = of_cell(trideva_places, cell);
            page.PaintPicture({.picture = mark,
                               .x = place.x,
                               .y = place.y,
                               .size = trideva_size,
                               .natural = true,
                               .file = {}});
        }
    }
    program.printing.imprime_tri_deva = false;
}

void notes(Program& program, DrawingSurface& page) {
    auto& cut = program.printing.notes;
    ligne_charactere(program.form1.Text_Note.Text.get(), note_lines, note_line_characters, cut);
    set_font(page, arial_narrow, 14);
    page.right_edge = frame_right;
    double y = 8.99;
    for (auto const& line : cut.lignes_note) {
        page.Print(0.5, y, text::Replace_Char(line, text::line_break, " "));
        y += 0.22;
    }
}

void periods(Program const& program, DrawingSurface& page) {
    page.ForeColor = screen::black;
    set_font(page, arial_narrow, 10);
    page.right_edge = frame_right;
    double y = 2.3;
    for (auto const& line : program.printing.periodes_impression) {
        page.Print(6.35, y, line);
        y += 0.18;
    }
}

void destiny_palace(Program& program, DrawingSurface& page) {
    // A window that is closed is filled unseen.
    if (!program.palais_du_destin.Visible) palaisDudestin(program);
    auto const& facts = program.palais_du_destin.Label_Palais_du_destin;
    stretched(page, "Image_PalaisDestin_NB", 6.285, 7.713, {1.535, 1.2});
    page.Box(6.3, 7.73, 7.8, 8.9);
    page.right_edge = gate_right;
    page.Print(6.84, 8.09, facts(1).Caption.get());
    page.Print(6.84, 8.37, facts(2).Caption.get());
    page.right_edge = gate_number;
    page.Print(6.84, 8.66, facts(3).Caption.get());
    page.FontSize = 14;
    page.right_edge = gate_right;
    page.Print(gate_number, 8.66, facts(0).Caption.get());
}

void palace_numbers(Form1 const& form, DrawingSurface& page) {
    page.FontSize = 11;
    page.right_edge = 0;
    for (int n = 0; n < 12; ++n) {
        int const cell = n == 0 ? 12 : n;
        auto const& place = of_cell(palace_places, cell);
        page.Print(place.x, place.y, form.Label_Solaire(cell).Caption.get());
    }
}

// A lord in a cell; the one in progress is marked.
void cell_lord(DrawingSurface& page, double x, double y, std::string const& caption,
               bool in_progress) {
    page.ForeColor = screen::black;
    page.FontBold = in_progress;
    page.Print(x, y, in_progress ? "*" + caption : caption);
    page.FontBold = false;
    page.ForeColor = date_grey;
}

void period_row(Program const& program, DrawingSurface& page) {
    auto const& form = program.form1;
    page.ForeColor = date_grey;
    page.FontName = arial;
    for (int cell = 1; cell <= 12; ++cell) {
        auto const& place = of_cell(cell_places, cell);
        page.FontSize = 13;
        cell_lord(page, place.x, place.lord, form.Label_Dasha(cell).Caption.get(),
                  cell == program.consultation.colonne_dasha);
        page.FontSize = 9;
        page.Print(place.x, place.lord_date, form.Label_DashaDate(cell).Caption.get());
    }
}

// The lord of the year stands in the cell of the age alone.
void year_marker(Program const& program, DrawingSurface& page) {
    page.ForeColor = screen::black;
    page.FontBold = true;
    int const cell = program.consultation.colonne_age;
    if (cell >= 1 && cell <= 12) {
        auto const& place = of_cell(cell_places, cell);
        page.FontSize = 13;
        page.Print(place.x, place.year, program.form1.Label_annee(cell).Caption.get() + "*");
    }
    page.FontBold = false;
    page.ForeColor = date_grey;
}

void month_row(Program const& program, DrawingSurface& page) {
    auto const& form = program.form1;
    page.FontName = arial;
    for (int cell = 1; cell <= 12; ++cell) {
        auto const& place = of_cell(cell_places, cell);
        page.FontSize = 12;
        cell_lord(page, place.x, place.month, form.Label_mois(cell).Caption.get(),
                  cell == program.consultation.colonne_mois);
        page.FontSize = 9;
        page.Print(place.x, place.month_date, form.Label_MoisDate(cell).Caption.get());
    }
}

void MnuImprime_click(Program& program) {
    efface_fleche(program);
    choix_periode(program);
    auto& printing = program.printing;
    printing.imprime_periode = true;
    printing.imprime_mahadasha = true;
    printing.imprime_seigneur_mois = true;
    printing.imprime_note = true;
    printing.imprime_photo = true;
    program.form1.Picture2.Visible = false;
    printing.imprime_tri_deva = true;
    print_report(program);
}

}  // namespace

std::optional<screen::Page> PrintRoutine(Program& program, double ratio) {
    auto& printing = program.printing;
    printing.notes = {};
    DrawingSurface page{ratio};
    outlines(page);
    title(program, page);
    if (printing.imprime_photo) {
        page.PaintPicture(portrait(program));
        page.Box(6.92, 0.9, 7.8, 2.1);
    }
    if (!identity(program, page)) return {};
    year_frames(page);
    chart(program, page);
    tri_deva_marks(program, page);
    if (printing.imprime_note) notes(program, page);
    page.FontName = arial;
    page.right_edge = lord_of_year_right;
    page.Print(0.8, 2.32, std::string{program.name_of_lord(program.consultation.seigneur_an)});
    if (printing.imprime_periode) periods(program, page);
    if (printing.imprime_palais_destin) destiny_palace(program, page);
    palace_numbers(program.form1, page);
    if (printing.imprime_mahadasha) period_row(program, page);
    year_marker(program, page);
    if (printing.imprime_seigneur_mois) month_row(program, page);
    return page.page();
}

void print_report(Program& program) {
    if (program.platform.printer_dialog() == Answer::cancel) return;
    keep_periods_of_the_person(program);
    if (auto page = PrintRoutine(program, 1)) program.platform.print({std::move(*page)});
}

void wire_report(Program& program) {
    program.form1.MnuImprime.on_click = [&program] { MnuImprime_click(program); };
}

}  // namespace navarun
