// Watching a start.
#include "benchmarks/desktop/started_program.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace navarun {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto patience = std::chrono::seconds{30};
constexpr auto between_looks = std::chrono::microseconds{500};
// After the first picture a start still settles for a moment.
constexpr auto settling = std::chrono::milliseconds{700};
// Small windows are no main windows.
constexpr int least_width = 600;
constexpr int least_height = 400;

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

// A started process, ended with the block that holds it.
class Process {
  public:
    explicit Process(std::string const& program) {
        std::array<char*, 2> arguments{const_cast<char*>(program.c_str()), nullptr};
        if (::posix_spawn(&m_id, program.c_str(), nullptr, nullptr, arguments.data(),
                          environ) != 0) {
            throw std::runtime_error{"cannot start " + program};
        }
    }
    ~Process() {
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
    }
    Process(Process const&) = delete;
    Process& operator=(Process const&) = delete;

    /// A line of the kernel's account of the memory, in kilobytes.
    double memory(std::string const& line) const {
        std::ifstream account{"/proc/" + std::to_string(m_id) + "/smaps_rollup"};
        std::string word;
        double kilobytes = 0;
        while (account >> word) {
            if (word == line && account >> kilobytes) return kilobytes;
        }
        throw std::runtime_error{"no " + line + " in the account of the memory"};
    }

  private:
    pid_t m_id = 0;
};

}  // namespace

Display::Display() : m_connection{xcb_connect(nullptr, nullptr)} {
    if (xcb_connection_has_error(m_connection) != 0) {
        xcb_disconnect(m_connection);
        throw std::runtime_error{"no display"};
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

Display::~Display() { xcb_disconnect(m_connection); }

bool Display::find_large_window() {
    Owned<xcb_query_tree_reply_t> const tree{
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_root), nullptr)};
    if (!tree) return false;
    auto const* const windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        Owned<xcb_get_window_attributes_reply_t> const attributes{
            xcb_get_window_attributes_reply(
                m_connection, xcb_get_window_attributes(m_connection, windows[i]), nullptr)};
        if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE) continue;
        Owned<xcb_get_geometry_reply_t> const place{xcb_get_geometry_reply(
            m_connection, xcb_get_geometry(m_connection, windows[i]), nullptr)};
        if (!place || place->width < least_width || place->height < least_height) continue;
        m_window = windows[i];
        m_width = place->width;
        m_height = place->height;
        return true;
    }
    return false;
}

// The toolkit puts a window on the screen in one go; nine tenths allow for what is black in it.
bool Display::is_painted() const {
    constexpr int rows_looked_at = 16;
    std::size_t pixels = 0;
    std::size_t coloured = 0;
    for (int i = 0; i < rows_looked_at; ++i) {
        auto const y = static_cast<std::int16_t>(m_height * (2 * i + 1) / (2 * rows_looked_at));
        Owned<xcb_get_image_reply_t> const image{xcb_get_image_reply(
            m_connection,
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, 0, y,
                          static_cast<std::uint16_t>(m_width), 1, ~0U),
            nullptr)};
        if (!image) return false;
        auto const* const bytes = xcb_get_image_data(image.get());
        for (int at = 0; at + 3 < xcb_get_image_data_length(image.get()); at += 4) {
            ++pixels;
            if (bytes[at] != 0 || bytes[at + 1] != 0 || bytes[at + 2] != 0) ++coloured;
        }
    }
    return pixels > 0 && coloured * 10 >= pixels * 9;
}

void Display::wait_for_painted_window() {
    auto const end = Clock::now() + patience;
    while (!find_large_window() || !is_painted()) {
        if (Clock::now() > end) throw std::runtime_error{"no window came up"};
        std::this_thread::sleep_for(between_looks);
    }
}

StartFigures measure_start(std::string const& program) {
    Display display;
    auto const start = Clock::now();
    Process const process{program};
    display.wait_for_painted_window();
    std::chrono::duration<double, std::milli> const time = Clock::now() - start;
    std::this_thread::sleep_for(settling);
    return {time.count(), process.memory("Rss:"), process.memory("Pss:")};
}

}  // namespace navarun
