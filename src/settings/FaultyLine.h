// Reports an invalid line of a settings, theme or entity file.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace tunedex {

// Writes one line, "file:line: line skipped: reason". Lines count from 1.
inline void ReportFaultyLine(std::ostream& faults, std::string_view file, std::size_t line,
                             std::string_view reason) {
    faults << file << ':' << line << ": line skipped: " << reason << '\n';
}

} // namespace tunedex
