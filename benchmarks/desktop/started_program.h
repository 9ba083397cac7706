// A program that opens a window, watched from outside: when its window stands painted on the
// display, and how much memory it then holds.
#pragma once

#include <string>

#include <sys/types.h>
#include <xcb/xcb.h>

namespace navarun {

/// The X display named by DISPLAY. Its screen is empty and black.
class Display {
  public:
    /// Throws std::runtime_error where there is none.
    Display();
    ~Display();
    Display(Display const&) = delete;
    Display& operator=(Display const&) = delete;

    /// Waits until a large window is on the screen and no longer black.
    /// Throws std::runtime_error where none is after half a minute.
    void wait_for_painted_window();

  private:
    bool find_large_window();
    bool is_painted() const;

    xcb_connection_t* m_connection;
    xcb_window_t m_root = 0;
    xcb_window_t m_window = 0;
    int m_width = 0;
    int m_height = 0;
};

struct StartFigures {
    double milliseconds = 0;  // from the start of the process to the painted window
    double rss = 0;           // kilobytes, when the start has settled
    double pss = 0;
};

/// Starts the program, measures it and ends it.
StartFigures measure_start(std::string const& program);

}  // namespace navarun
