// The program's exit statuses. They are documented in --help and in the manual page.
#pragma once

namespace tunedex {

inline constexpr int kExitSuccess = 0;
inline constexpr int kExitFailure = 1;     // no listing or file was written
inline constexpr int kExitCannotStart = 2; // also when standard output cannot be written
inline constexpr int kExitIncomplete = 3;  // a modern listing was written without what could not be read

} // namespace tunedex
