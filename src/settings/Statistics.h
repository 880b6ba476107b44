// The usage figures kept across runs in "stats.lst".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kStatisticsFileName = "stats.lst";

struct Statistics {
    std::string FirstStarted; // a short date as it was written, never parsed
    std::int32_t TimesStarted = 0;
    std::int32_t ListsCreated = 0;
    std::int32_t FilesHandled = 0;

    bool operator==(const Statistics&) const = default;
};

// The figures of a first start on that day, this start counted.
Statistics FirstStatistics(const std::string& today);

// The figures of the file, this start counted; those of a first start when there is no file. Raises error 62
// for fewer than four lines, 5 for a first line too short for its quotes, 13 for a count of starts that is no
// number, 6 for a number out of range.
Statistics LoadStatistics(const std::string& path, const std::string& today);
// The same from the file's lines.
Statistics ParseStatistics(const std::vector<std::string>& lines);

// Raises the error of a file that cannot be written; the old file is then still there.
void SaveStatistics(const Statistics& statistics, const std::string& path);

// The sentences of the about box.
std::string StatisticsText(const Statistics& statistics);

} // namespace tunedex
