// Two columns of lines, flowing from page to page.
#include "print/lords_listing.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "core/calendar.h"
#include "core/text.h"
#include "print/drawing_surface.h"
#include "print/page_title.h"
#include "shell/program.h"

namespace navarun {

namespace {

using Rows = std::vector<std::string>;

constexpr double left_edge = 0.5;
constexpr double number_edge = 7.5;

// What printers leave free at the foot of the paper, in inches.
constexpr double foot_margin = 1.0 / 6;
// Ascent, descent and leading of the faces in use, in their size.
constexpr double line_height_of_size = 1.149;
constexpr double points_per_inch = 72;

// Lines below each other; the one that no longer fits opens the next page.
class Flow {
  public:
    explicit Flow(screen::PageSize paper) : m_foot{paper.height - foot_margin} {}

    void set_font(std::string_view name, double size) {
        m_surface.FontName = name;
        m_surface.FontSize = size;
    }
    void set_face(std::string_view name) { m_surface.FontName = name; }
    void move_to(double y) { m_y = y; }

    void line(double x, std::string text) {
        make_room();
        m_surface.Print(x, m_y, std::move(text));
        m_y += line_height();
    }
    // One text of so many line breaks. The paper may end within it.
    void space(int breaks) {
        line(left_edge, text::repeated(text::line_break, breaks));
        for (int i = 0; i < breaks; ++i) {
            make_room();
            m_y += line_height();
        }
    }

    std::vector<screen::Page> pages() {
        m_pages.push_back(m_surface.page());
        return std::move(m_pages);
    }

  private:
    double line_height() const {
        return m_surface.FontSize / points_per_inch * line_height_of_size;
    }
    void make_room() {
        if (m_y + line_height() <= m_foot) return;
        m_pages.push_back(m_surface.page());
        DrawingSurface next{1};
        next.FontName = m_surface.FontName;
        next.FontSize = m_surface.FontSize;
        m_surface = next;
        m_y = 0;
    }

    double m_foot;
    double m_y = 0;
    DrawingSurface m_surface{1};
    std::vector<screen::Page> m_pages;
};

// The rows of the left column; those of the right one stand so many rows further down the list.
// The spacing after it ends the page.
struct Block {
    std::size_t first;
    std::size_t end;  // the row after the last
    std::size_t to_right_column;
    int breaks_before_number;  // 0: the number stands right below the block
    int breaks_after_number;
};
constexpr std::size_t to_the_end = std::numeric_limits<std::size_t>::max();
// clang-format off
constexpr std::array<Block, 4> blocks{{
    {5,   63,         58, 0,  5},
    {121, 185,        64, 0,  5},
    {249, 313,        64, 0,  5},
    {377, to_the_end, 54, 31, 0},
}};
// clang-format on

std::string row(Rows const& rows, std::size_t place) {
    return place < rows.size() ? rows[place] : std::string{};
}

// So that the date ends where the page does, whatever the length of the day's name. Sunday
// first.
constexpr std::array<double, 7> print_date_edges{5.7, 5.97, 5.97, 5.77, 5.97, 5.77, 5.85};

std::string rule() { return text::repeated("¯", 75); }

void head(Program const& program, Rows const& rows, Flow& flow) {
    flow.set_font("Arial", 17);
    flow.move_to(0.4);
    flow.line(2.3, std::string{page_title});
    flow.set_face("Arial");
    flow.move_to(0.7);
    flow.line(3.15, program.url_defaut.front());
    Date const today = program.platform.today();
    flow.set_font("Arial", 10);
    flow.move_to(0.7);
    flow.line(print_date_edges[static_cast<std::size_t>(weekday_of(today) - 1)],
              print_date(today));
    flow.set_font("MS Sans Serif", 12);
    flow.move_to(1);
    flow.line(left_edge, rule());
    flow.line(left_edge, row(rows, 0) + "   " + row(rows, 1) + "  (" +
                             program.form1.Label_jourdeSemaine.Caption.get() + ")");
    flow.move_to(1.45);
    flow.line(left_edge, row(rows, 2) + "   " + row(rows, 3));
    flow.line(left_edge, rule());
}

void Btn_Imprime_click(Program& program) {
    program.frm_seigneur_jour.hide();
    auto& platform = program.platform;
    if (platform.printer_dialog() == Answer::cancel) return;
    platform.print(Print_seigneurdujour(program, platform.printer_page()));
}

}  // namespace

std::vector<screen::Page> Print_seigneurdujour(Program const& program, screen::PageSize paper) {
    Rows const& rows = program.frm_seigneur_jour.List_SeigneurJour.entries();
    Flow flow{paper};
    head(program, rows, flow);
    flow.set_font("Arial Narrow", 10);
    flow.move_to(1.7);
    int number = 1;
    for (auto const& block : blocks) {
        std::size_t const end = std::min(block.end, rows.size());
        for (std::size_t left = block.first; left < end; ++left) {
            flow.line(left_edge,
                      row(rows, left) + "\t\t\t" + row(rows, left + block.to_right_column));
        }
        if (block.breaks_before_number > 0) flow.space(block.breaks_before_number);
        flow.line(number_edge, std::to_string(number++));
        if (block.breaks_after_number > 0) flow.space(block.breaks_after_number);
    }
    return flow.pages();
}

void wire_lords_listing(Program& program) {
    program.frm_seigneur_jour.Btn_Imprime.on_click = [&program] { Btn_Imprime_click(program); };
}

}  // namespace navarun
