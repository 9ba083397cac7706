// hold_file FILE alone|readers: keeps a file open as another program would, with nobody beside
// it or with readers only, says "held" and lets go when its input ends.
#include <cstdio>
#include <cwchar>

#include "files/windows_calls.h"

int wmain(int argc, wchar_t** argv) {
    if (argc != 3) return 2;
    DWORD const shared = std::wcscmp(argv[2], L"readers") == 0 ? FILE_SHARE_READ : 0;
    navarun::Handle const file{::CreateFileW(argv[1], GENERIC_READ, shared, nullptr,
                                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)};
    if (!file.is_open()) return 1;
    std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
