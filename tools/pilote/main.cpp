// pilote FOLDER: reads requests from standard input, a line each, and answers on standard
// output.
#include <iostream>
#include <string>

#include "tools/pilote/pilot.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage : pilote DOSSIER\n";
        return 2;
    }
    navarun::pilot::Pilot pilot{argv[1]};
    std::string line;
    while (std::getline(std::cin, line)) {
        std::cout << pilot.answer_line(line) << std::endl;
        if (auto const status = pilot.exit_status()) return *status;
    }
    return 0;
}
