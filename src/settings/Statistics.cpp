#include "Statistics.h"

#include "FileSystem.h"
#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"
#include "TextLines.h"

namespace tunedex {

Statistics FirstStatistics(const std::string& today) {
    return {today, 1, 0, 0};
}

Statistics LoadStatistics(const std::string& path, const std::string& today) {
    return FileExists(path) ? ParseStatistics(ReadTextLines(path)) : FirstStatistics(today);
}

Statistics ParseStatistics(const std::vector<std::string>& lines) {
    if (lines.size() < 4) {
        throw RunTimeError(ErrorNumber::InputPastEnd);
    }
    const std::string& quoted = lines[0];
    if (quoted.empty()) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    // Required: the first and last characters are dropped, whether they are quotes or not.
    const std::size_t first = StepAt(quoted, 0).length;
    std::size_t last = 0;
    for (std::size_t i = 0; i < quoted.size(); i += StepAt(quoted, i).length) {
        last = i;
    }
    if (last < first) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    Statistics statistics;
    statistics.FirstStarted = quoted.substr(first, last - first);
    statistics.TimesStarted = ToInt32(RequireNumber(lines[1]) + 1);
    statistics.ListsCreated = ToInt32(LeadingNumber(lines[2]));
    statistics.FilesHandled = ToInt32(LeadingNumber(lines[3]));
    return statistics;
}

void SaveStatistics(const Statistics& statistics, const std::string& path) {
    TextFile file(path, TextEncoding::FileLine);
    file.WriteLine("\"" + statistics.FirstStarted + "\"");
    file.WriteLine(std::to_string(statistics.TimesStarted));
    file.WriteLine(std::to_string(statistics.ListsCreated));
    file.WriteLine(std::to_string(statistics.FilesHandled));
    file.Close();
}

std::string StatisticsText(const Statistics& statistics) {
    // Required: zero is singular, "0 time".
    std::string text = "Tunedex was first started on " + statistics.FirstStarted + " and has been started " +
                       std::to_string(statistics.TimesStarted) +
                       (statistics.TimesStarted < 2 ? " time" : " times") + " since.\r\n";
    if (statistics.ListsCreated >= 1 && statistics.FilesHandled > 0) {
        text += "It has created " + std::to_string(statistics.ListsCreated) +
                (statistics.ListsCreated == 1 ? " list" : " lists") + ", and handled " +
                std::to_string(statistics.FilesHandled) + " MP3" +
                (statistics.FilesHandled == 1 ? " file." : " files.");
    }
    return text;
}

} // namespace tunedex
