// Starts both programs alternately and compares the times to their first painted window.
//
// usage: startup_bench EMPTY-PROGRAM TUNEDEX-PROGRAM [ROUNDS]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

long long NowInNanoseconds() {
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double MillisecondsToFirstPaint(const std::string& program) {
    const long long start = NowInNanoseconds();
    std::FILE* output = popen(("exec '" + program + "'").c_str(), "r");
    std::array<char, 64> line{};
    const bool told = output != nullptr && std::fgets(line.data(), line.size(), output) != nullptr;
    if (output == nullptr || pclose(output) != 0 || !told) {
        throw std::runtime_error(program + " failed");
    }
    return static_cast<double>(std::stoll(line.data()) - start) / 1e6;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int Run(const std::vector<std::string>& arguments) {
    if (arguments.size() < 2 || arguments.size() > 3) {
        std::cerr << "usage: startup_bench EMPTY-PROGRAM TUNEDEX-PROGRAM [ROUNDS]\n";
        return 2;
    }
    const int rounds = arguments.size() > 2 ? std::stoi(arguments[2]) : 21;
    std::vector<double> empty;
    std::vector<double> full;
    for (int round = -2; round < rounds; ++round) {
        const double first = MillisecondsToFirstPaint(arguments[0]);
        const double second = MillisecondsToFirstPaint(arguments[1]);
        if (round >= 0) { // the first two rounds warm the caches
            empty.push_back(first);
            full.push_back(second);
        }
    }
    std::printf(
        "start to first painted window, median of %d: empty window %.1f ms, Tunedex %.1f ms, ratio %.2f\n",
        rounds, Median(empty), Median(full), Median(full) / Median(empty));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return Run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "startup_bench: " << error.what() << '\n';
        return 1;
    }
}
