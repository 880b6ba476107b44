#include "ProgressText.h"

#include "PlayTime.h"
#include "RunRate.h"
#include "TerminalText.h"

#include <algorithm>

namespace tunedex {

namespace {

constexpr std::int64_t kBarWidth = 20;
constexpr std::string_view kColour = "\x1b[32m"; // green
constexpr std::string_view kNoColour = "\x1b[0m";

std::size_t FilledCells(const Progress& progress) {
    if (progress.total <= 0) {
        return 0;
    }
    return static_cast<std::size_t>(
        std::clamp<std::int64_t>(progress.done * kBarWidth / progress.total, 0, kBarWidth));
}

std::string RateText(const Progress& progress) {
    const std::optional<RunRate> rate = RateOf(progress.done, progress.total, progress.elapsed);
    if (!rate) {
        return {};
    }
    return "  " + std::to_string(rate->filesPerSecond) + "/s  " + MinutesAndSeconds(rate->secondsLeft) +
           " left";
}

std::string LineOf(const Progress& progress, std::size_t filled) {
    std::string line;
    if (progress.total > 0) {
        line = "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '.') + "] ";
        line +=
            std::to_string(progress.done) + "/" + std::to_string(progress.total) + RateText(progress) + "  ";
    } else if (progress.done > 0) {
        line = std::to_string(progress.done) + "  ";
    }
    return line + TerminalText(progress.status);
}

} // namespace

std::string ProgressText(const Progress& progress, unsigned columns, bool coloured) {
    const std::size_t filled = FilledCells(progress);
    const std::string line = LineOf(progress, filled);
    // A character is at most as wide as its number of bytes. The last column stays free because some
    // terminals wrap there.
    std::string shown(columns > 0 ? CutToBytes(line, columns - 1U) : std::string_view(line));
    if (coloured && filled > 0 && shown.size() > filled) {
        shown.insert(1 + filled, kNoColour);
        shown.insert(1, kColour);
    }
    return shown;
}

} // namespace tunedex
