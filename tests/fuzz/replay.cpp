// Runs a target on the inputs of its corpus, where no fuzzer is linked.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/fuzz.h"

int main(int argc, char** argv) {
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        for (auto const& entry : std::filesystem::directory_iterator{argv[i]}) {
            std::ifstream file{entry.path(), std::ios::binary};
            std::string const input{std::istreambuf_iterator<char>{file}, {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(input.data()),
                                   input.size());
            ++inputs;
        }
    }
    std::cout << inputs << " inputs\n";
    return inputs > 0 ? 0 : 1;
}
