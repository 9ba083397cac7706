// pilote FOLDER: reads requests from standard input, a line each, and answers on standard
// output.
#include <filesystem>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "tools/pilote/pilot.h"

namespace {

int misused() {
    std::cerr << "usage : pilote DOSSIER\n";
    return 2;
}

int run(std::filesystem::path const& folder) {
    navarun::pilot::Pilot pilot{folder};
    std::string line;
    while (std::getline(std::cin, line)) {
        std::cout << pilot.answer_line(line) << std::endl;
        if (auto const status = pilot.exit_status()) return *status;
    }
    return 0;
}

}  // namespace

#ifdef _WIN32
// The folder as the system names it, not in the code page of the machine; and lines that end
// alike on every platform.
int wmain(int argc, wchar_t** argv) {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    return argc == 2 ? run(argv[1]) : misused();
}
#else
int main(int argc, char** argv) { return argc == 2 ? run(argv[1]) : misused(); }
#endif
