// The floors of the calculation: the fields that an operation writes, with the values that it
// left there, ready to be written again through the same properties.
//
// Each field is written once, with its last value, though a generation clears some of them
// first. What no field shows (the values behind the grid) is not written at all.
#pragma once

#include <array>
#include <string>

#include "shell/program.h"

namespace navarun {

/// What tells whether the grid is true or stale.
class ReadyState {
  public:
    explicit ReadyState(Form1 const& form);
    void write(Form1& form) const;

  private:
    screen::Picture m_button;
    std::string m_tooltip;
    screen::Colour m_age_back;
    bool m_can_print;
};

/// What a step of the age bar writes, the position of the bar included.
class ReadyAge {
  public:
    explicit ReadyAge(Form1 const& form);
    /// REQUIRES that nothing listens to the change of the bar.
    void write(Form1& form) const;

  private:
    int m_position;
    std::string m_tag;
    std::string m_first_day;
    std::string m_last_day;
    std::string m_lord;
    std::string m_age;
};

/// What a generation writes, but for the state.
class ReadyGrid {
  public:
    explicit ReadyGrid(Program const& program);
    void write(Program& program) const;

  private:
    struct Name {
        std::string caption;
        screen::Colour fore;
        bool bold;
    };
    struct DateText {
        std::string caption;
        screen::Colour fore;
    };
    struct Cell {
        std::string year;
        Name period;
        DateText period_date;
        Name month;
        DateText month_date;
        std::string palace;
        screen::Colour palace_back;
        std::string palace_tooltip;
    };
    struct Mark {
        int index;
        int left;
        int top;
        bool visible;
    };

    std::array<Cell, 12> m_cells;
    std::array<Mark, 4> m_marks;
    int m_sun_cell;
    int m_year_cell;
    screen::Picture m_chart;
    std::string m_tag;
    std::string m_calendar;
    screen::Colour m_calendar_fore;
    bool m_julian;
    std::string m_mansion;
    std::string m_lord;
    screen::Colour m_lord_back;
    screen::Colour m_lord_fore;
    std::string m_zodiac;
    std::string m_zodiac_reading;
    std::string m_age_lord;
};

}  // namespace navarun
