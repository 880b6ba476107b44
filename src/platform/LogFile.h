// The error log of a run: a line is on its way to the disk as soon as it is written, so that a run that ends
// badly still leaves its log.
#pragma once

#include "StopTest.h"
#include "UniqueFd.h"

#include <string>
#include <string_view>

namespace tunedex {

class LogFile {
  public:
    // Creates the file or empties it; unlike a listing it is written in place. A log that is a FIFO may be
    // full: `stop` can then end the wait for its reader. Raises 75, 76, 61 and the like, and 57 for a FIFO
    // without a reader.
    explicit LogFile(const std::string& path, StopTest stop = {});
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    ~LogFile() = default;

    // One line, encoded for itself and ended by CR LF; a CR or LF within it is written as a blank. It is
    // dropped, in part perhaps, when the stop test ends the wait for a reader, and so are later ones. Raises
    // the error of a write that fails.
    void WriteLine(std::string_view text);

    // Closes the file and raises the error of a close that fails; the destructor closes silently.
    void Close();

  private:
    UniqueFd descriptor_;
    StopTest stop_;
    bool stopped_ = false;
};

} // namespace tunedex
