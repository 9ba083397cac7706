// Preloaded into the program: tells how many bytes of the heap are in use, to whoever connects
// to the socket whose path stands in HEAP_PROBE. What the program has given back and the C
// library keeps does not count; so a leak shows long before the process grows by a page.
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include <dlfcn.h>
#include <malloc.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

void answer(int client) {
    auto const heap = ::mallinfo2();
    std::array<char, 64> told{};
    // In the arenas, and the large blocks that lie outside of them.
    int const length =
        std::snprintf(told.data(), told.size(), "%zu\n", heap.uordblks + heap.hblkhd);
    [[maybe_unused]] auto const sent =
        ::write(client, told.data(), static_cast<std::size_t>(length));
    ::close(client);
}

void serve(int server) {
    // Signals are the program's own affair.
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
    for (;;) {
        int const client = ::accept4(server, nullptr, nullptr, SOCK_CLOEXEC);
        if (client >= 0) answer(client);
    }
}

[[gnu::constructor]] void begin() {
    char const* const path = std::getenv("HEAP_PROBE");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path == nullptr || std::strlen(path) >= sizeof address.sun_path) return;
    std::strcpy(address.sun_path, path);
    int const server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // What the program starts inherits the probe and finds the place taken.
    if (::bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(server, 1) != 0) {
        ::close(server);
        return;
    }
    std::thread{serve, server}.detach();
}

}  // namespace

// The toolkit keeps what it has drawn of buttons, frames and icons, up to 10 MB, and lets go of
// it in idle minutes. Each box brings its own, for they are kept by the number of its palette,
// and in hours without a minute's rest nothing else would be seen: so here it is to keep none
// of them. The program's own call of QApplication::exec() comes here first, for it is told
// where there is an application.
extern "C" [[gnu::visibility("default")]] int begin_without_cache() __asm__(
    "_ZN12QApplication4execEv");
int begin_without_cache() {
    auto const set_cache_limit = reinterpret_cast<void (*)(int)>(
        ::dlsym(RTLD_DEFAULT, "_ZN12QPixmapCache13setCacheLimitEi"));
    auto const exec =
        reinterpret_cast<int (*)()>(::dlsym(RTLD_NEXT, "_ZN12QApplication4execEv"));
    if (set_cache_limit == nullptr || exec == nullptr) std::abort();
    set_cache_limit(0);
    return exec();
}
