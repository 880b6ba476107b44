// The error log of a run. Each line is written at once, unbuffered, so that a run that crashes still leaves
// its log.
#pragma once

#include "StopTest.h"
#include "UniqueFd.h"

#include <string>
#include <string_view>

namespace tunedex {

class LogFile {
  public:
    // Creates or truncates the file. Unlike a listing it is written in place. Writing to a full FIFO waits
    // for its reader; `stop` can end the wait. Raises 75, 76, 61 and the like, and 57 for a FIFO without a
    // reader.
    explicit LogFile(const std::string& path, StopTest stop = {});
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    ~LogFile() = default;

    // Writes one line in its own encoding (EncodeFileLine), ended by CR LF; a CR or LF in the text becomes a
    // blank. When the stop test ends a wait, the rest of this line and all later lines are dropped. Raises
    // the error of a failed write.
    void WriteLine(std::string_view text);

    // Raises the error of a failed close; the destructor ignores it.
    void Close();

  private:
    UniqueFd descriptor_;
    StopTest stop_;
    bool stopped_ = false;
};

} // namespace tunedex
