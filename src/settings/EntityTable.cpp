#include "EntityTable.h"

#include "FaultyLine.h"
#include "FileSystem.h"
#include "Numbers.h"
#include "RunTimeError.h"
#include "TextLines.h"

namespace tunedex {

namespace {

EntityTable::Slot ParseEntry(const std::string& line) {
    const std::size_t tab = line.find('\t');
    if (tab == std::string::npos) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    const std::int16_t code = ToInt16(RequireNumber(std::string_view(line).substr(0, tab)));
    if (code < 0 || code > 255) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::size_t second = line.find('\t', tab + 1);
    return {code, line.substr(tab + 1, second == std::string::npos ? second : second - tab - 1)};
}

} // namespace

void EntityTable::Load(const std::string& path, std::ostream& faults) {
    Load(FileExists(path) ? ReadTextLines(path) : std::vector<std::string>(), path, faults);
}

void EntityTable::Load(const std::vector<std::string>& lines, std::string_view name, std::ostream& faults) {
    slots_.clear();
    std::size_t number = 0;
    for (const std::string& line : lines) {
        ++number;
        if (line.empty() || line.front() == '#') {
            continue;
        }
        try {
            slots_.push_back(ParseEntry(line));
        } catch (const RunTimeError& error) {
            const bool noTab = line.find('\t') == std::string::npos;
            ReportFaultyLine(faults, name, number, noTab ? "no TAB in it" : error.Description());
        }
    }
    // Required: all lines count, comments too. The empty slots remove NUL characters.
    slots_.resize(lines.size() + 1);
}

} // namespace tunedex
