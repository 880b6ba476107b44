// Usage counts, kept across runs in "stats.lst".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kStatisticsFileName = "stats.lst";

struct Statistics {
    std::string FirstStarted; // a short date in the locale of that day, never parsed
    std::int32_t TimesStarted = 0;
    std::int32_t ListsCreated = 0;
    std::int32_t FilesHandled = 0;

    bool operator==(const Statistics&) const = default;
};

// The counts at the first start.
Statistics FirstStatistics(const std::string& today);

// Reads the file and counts this start; FirstStatistics() if there is no file. Raises error 62 for fewer than
// four lines, 5 for a first line too short for its quotes, 13 for a count of starts that is not a number, 6
// for a number out of range.
Statistics LoadStatistics(const std::string& path, const std::string& today);
// The same from the file's lines.
Statistics ParseStatistics(const std::vector<std::string>& lines);

// Raises the error of a file that cannot be written; the old file is then kept.
void SaveStatistics(const Statistics& statistics, const std::string& path);

// The sentences in the about box, the first ended by CR LF.
std::string StatisticsText(const Statistics& statistics);

} // namespace tunedex
