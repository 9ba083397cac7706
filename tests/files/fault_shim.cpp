// Preloaded over the C library: makes one file operation of a run fail, or the disk run full,
// below one folder. What to do stands in the environment:
//   FAULT_FOLDER  only paths that begin with this text
//   FAULT_CALL    open, write, fsync, close, rename, unlink, read, stat, chmod, mkdir, opendir;
//                 any for whichever of them
//   FAULT_NUMBER  which such call, from 1
//   FAULT_ARMED   only while this file stands are calls counted; none for always
//   FAULT_ERRNO   what it fails with; 0 for a short write
//   FAULT_BUDGET  in place of the three above: bytes that the disk takes, in all
//   FAULT_MARK    a file made when the fault has struck
#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

template <typename Function>
Function next(char const* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

long number_in(char const* variable) {
    char const* const text = std::getenv(variable);
    return text == nullptr ? -1 : std::atol(text);
}

bool below_the_folder(char const* path) {
    char const* const folder = std::getenv("FAULT_FOLDER");
    return folder != nullptr && path != nullptr &&
           std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool below_the_folder(int descriptor) {
    std::string const link = "/proc/self/fd/" + std::to_string(descriptor);
    char path[4096];
    auto const length = ::readlink(link.c_str(), path, sizeof path - 1);
    if (length < 0) return false;
    path[length] = '\0';
    return below_the_folder(path);
}

bool is_armed() {
    char const* const armed = std::getenv("FAULT_ARMED");
    return armed == nullptr || ::syscall(SYS_faccessat, AT_FDCWD, armed, F_OK) == 0;
}

void leave_mark() {
    char const* const mark = std::getenv("FAULT_MARK");
    if (mark == nullptr) return;
    long const descriptor =
        ::syscall(SYS_openat, AT_FDCWD, mark, O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor >= 0) ::syscall(SYS_close, descriptor);
}

bool can_be_interrupted(std::string_view call) {
    return call == "open" || call == "read" || call == "write" || call == "fsync" ||
           call == "close";
}

long& calls() {
    static long counted = 0;
    return counted;
}

// Whether this is the call that fails; then errno is set.
template <typename Where>
bool strikes(char const* call, Where where) {
    char const* const wanted = std::getenv("FAULT_CALL");
    if (wanted == nullptr) return false;
    if (std::strcmp(wanted, call) != 0 && std::strcmp(wanted, "any") != 0) return false;
    int const kept = errno;
    if (!is_armed() || !below_the_folder(where) || ++calls() != number_in("FAULT_NUMBER")) {
        errno = kept;
        return false;
    }
    int const failure = static_cast<int>(number_in("FAULT_ERRNO"));
    if (failure == EINTR && !can_be_interrupted(call)) {
        errno = kept;
        return false;
    }
    leave_mark();
    errno = failure;
    return true;
}

long& written() {
    static long bytes = 0;
    return bytes;
}

}  // namespace

extern "C" {

int open(char const* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    auto const mode = va_arg(rest, mode_t);
    va_end(rest);
    if (strikes("open", path)) return -1;
    return next<int (*)(char const*, int, ...)>("open")(path, flags, mode);
}

int open64(char const* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    auto const mode = va_arg(rest, mode_t);
    va_end(rest);
    if (strikes("open", path)) return -1;
    return next<int (*)(char const*, int, ...)>("open64")(path, flags, mode);
}

int openat(int folder, char const* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    auto const mode = va_arg(rest, mode_t);
    va_end(rest);
    if (strikes("open", path)) return -1;
    return next<int (*)(int, char const*, int, ...)>("openat")(folder, path, flags, mode);
}

ssize_t write(int descriptor, void const* bytes, size_t count) {
    static auto const real = next<ssize_t (*)(int, void const*, size_t)>("write");
    if (strikes("write", descriptor)) {
        if (errno != 0) return -1;
        return real(descriptor, bytes, count > 1 ? count / 2 : count);
    }
    long const budget = number_in("FAULT_BUDGET");
    if (budget < 0 || !below_the_folder(descriptor)) return real(descriptor, bytes, count);
    long const left = budget - written();
    if (left <= 0) {
        leave_mark();
        errno = ENOSPC;
        return -1;
    }
    auto const taken = real(descriptor, bytes, std::min(count, static_cast<size_t>(left)));
    if (taken > 0) written() += taken;
    return taken;
}

int fsync(int descriptor) {
    if (strikes("fsync", descriptor)) return -1;
    return next<int (*)(int)>("fsync")(descriptor);
}

int close(int descriptor) {
    static auto const real = next<int (*)(int)>("close");
    if (!strikes("close", descriptor)) return real(descriptor);
    int const kept = errno;
    real(descriptor);
    errno = kept;
    return -1;
}

int rename(char const* from, char const* to) noexcept {
    if (strikes("rename", from)) return -1;
    return next<int (*)(char const*, char const*)>("rename")(from, to);
}

int renameat2(int from_folder, char const* from, int to_folder, char const* to,
              unsigned flags) noexcept {
    if (strikes("rename", from)) return -1;
    return next<int (*)(int, char const*, int, char const*, unsigned)>("renameat2")(
        from_folder, from, to_folder, to, flags);
}

int unlink(char const* path) noexcept {
    if (strikes("unlink", path)) return -1;
    return next<int (*)(char const*)>("unlink")(path);
}

ssize_t read(int descriptor, void* bytes, size_t count) {
    static auto const real = next<ssize_t (*)(int, void*, size_t)>("read");
    if (strikes("read", descriptor)) return -1;
    return real(descriptor, bytes, count);
}

int stat(char const* path, struct stat* found) noexcept {
    if (strikes("stat", path)) return -1;
    return next<int (*)(char const*, struct stat*)>("stat")(path, found);
}

int fchmod(int descriptor, mode_t mode) noexcept {
    if (strikes("chmod", descriptor)) return -1;
    return next<int (*)(int, mode_t)>("fchmod")(descriptor, mode);
}

int mkdir(char const* path, mode_t mode) noexcept {
    if (strikes("mkdir", path)) return -1;
    return next<int (*)(char const*, mode_t)>("mkdir")(path, mode);
}

DIR* opendir(char const* path) {
    if (strikes("opendir", path)) return nullptr;
    return next<DIR* (*)(char const*)>("opendir")(path);
}

}  // extern "C"
