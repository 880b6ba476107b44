// Output to a file descriptor, standard error as a rule: written in full while it is read, abandoned after an
// abort.
#pragma once

#include <string_view>

namespace tunedex {

class TerminalOutput {
  public:
    // The descriptor stays the caller's and is never made non-blocking: other programs share its file
    // description. A pipe or a terminal is opened a second time for that; where this is refused (a terminal
    // of another user), writes may block and a signal that arrives within one ends it.
    explicit TerminalOutput(int descriptor);
    TerminalOutput(const TerminalOutput&) = delete;
    TerminalOutput& operator=(const TerminalOutput&) = delete;
    ~TerminalOutput();

    bool IsTerminal() const { return isTerminal_; }
    // Characters on a line; 0 when unknown.
    unsigned Columns() const;

    // Writes all the bytes, waiting as long as it takes for a reader. Once a signal has arrived, drops what
    // cannot be written at once. Errors are ignored: there is nobody left to tell.
    void Write(std::string_view bytes) const;

  private:
    const int descriptor_;
    const bool isTerminal_;
    const bool isSocket_;
    const int nonBlocking_; // -1 where there is none
};

} // namespace tunedex
