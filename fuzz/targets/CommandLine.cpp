// Input: arguments, each terminated by a NUL.
#include "CommandLine.h"
#include "Targets.h"

#include <string>
#include <vector>

namespace tunedex::fuzz {

void RunCommandLine(Bytes bytes) {
    Input input(bytes);
    std::vector<std::string> arguments;
    std::string joined;
    while (!input.Empty()) {
        arguments.push_back(input.Until(0));
        joined += arguments.back() + " ";
    }
    bool expected = false;
    for (std::size_t i = 0; i + 5 <= joined.size() && !expected; ++i) {
        std::string piece = joined.substr(i, 5);
        for (char& c : piece) {
            c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        }
        expected = piece == "/AUTO";
    }
    Require(IsAutomatic(arguments) == expected, "the switch is found at any position and in any case");
}

} // namespace tunedex::fuzz
