// The error log of a run: a line is on its way to the disk as soon as it is written, so that a run that ends
// badly still leaves its log.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

class LogFile {
  public:
    // Creates the file or empties it; unlike a listing it is written in place. Raises 75, 76, 61 and the
    // like.
    explicit LogFile(const std::string& path);
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    ~LogFile();

    // One line, encoded for itself and ended by CR LF; a CR or LF within it is written as a blank. Raises the
    // error of a write that fails.
    void WriteLine(std::string_view text);

    // Closes the file and raises the error of a close that fails; the destructor closes silently.
    void Close();

  private:
    int descriptor_ = -1;
};

} // namespace tunedex
