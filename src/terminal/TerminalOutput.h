// Writes to a file descriptor (usually standard error): blocks until everything is written, but not after an
// abort.
#pragma once

#include "UniqueFd.h"

#include <string_view>

namespace tunedex {

class TerminalOutput {
  public:
    // Does not own the descriptor and does not make it non-blocking, since other processes share its file
    // description. Opens a pipe or terminal a second time instead. If that fails (a terminal of another
    // user), writes may block until a signal arrives.
    explicit TerminalOutput(int descriptor);

    bool IsTerminal() const { return isTerminal_; }
    // Width in characters; 0 if unknown.
    unsigned Columns() const;

    // Writes all bytes, waiting for a reader without a time limit. Once a signal has arrived, drops what
    // would block. Ignores errors: there is no other channel to report them.
    void Write(std::string_view bytes) const;

  private:
    const int descriptor_;
    const bool isTerminal_;
    const bool isSocket_;
    const UniqueFd nonBlocking_; // none if not opened
};

// Opens the file of a pipe or terminal again, non-blocking, for writing; none for other files, which never
// block for long, and where that is not permitted.
UniqueFd OpenNonBlocking(int descriptor);

} // namespace tunedex
