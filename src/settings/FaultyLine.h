// How a line of a settings, theme or entity file that cannot be used is reported.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace tunedex {

// "file:line: line skipped: reason", one line. Lines are counted from 1.
inline void ReportFaultyLine(std::ostream& faults, std::string_view file, std::size_t line,
                             std::string_view reason) {
    faults << file << ':' << line << ": line skipped: " << reason << '\n';
}

} // namespace tunedex
