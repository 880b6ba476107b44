// A text file being written: the one place where texts become bytes on disk.
#pragma once

#include "FileReplacement.h"
#include "StopTest.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

// How a file's texts are encoded. Stray bytes are written as they are in all of them but the last.
enum class TextEncoding {
    Windows1252References, // what Windows-1252 lacks becomes a decimal character reference: HTML and XHTML
    Windows1252Questions,  // what Windows-1252 lacks becomes "?"
    Utf8,
    FileLine,     // each line for itself, as EncodeFileLine does, stray bytes as they are
    SettingsLine, // the same with stray bytes escaped, for files whose texts are read back
};

// The file is written to a temporary file in its own folder, which replaces the old file when it is closed;
// FileReplacement says when it is written in place instead. Unless Close() has returned, the destructor
// removes the temporary file and the old file is still there.
//
// A stream (a FIFO, a pipe behind /dev/stdout, a terminal) that takes no more is waited for. The stop test is
// asked while that lasts; once it ends the wait, everything that is still to be written is dropped, and
// Close() closes the file as it is.
//
// The constructor, the writes and Close() raise the error of what failed: 75 where the file or the folder may
// not be written, 76 for a folder that is not there, 61 for a full disk, 52 for an impossible name, 57 for
// other failures.
class TextFile {
  public:
    // How many bytes of text a writer best hands over at a time: that much goes to the system without a copy.
    static constexpr std::size_t kPieceBytes = 262144;

    // Removes temporary files that an earlier run left in the folder. For several files, `cleaned` keeps each
    // folder from being listed again.
    TextFile(const std::string& path, TextEncoding encoding, StopTest stop = {},
             CleanedFolders* cleaned = nullptr);
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;
    ~TextFile() = default;

    // Text as it stands; line breaks within it are the caller's.
    void Write(std::string_view text);
    // Text and a line end, CR LF.
    void WriteLine(std::string_view text);
    // Bytes that no encoding touches: a path as it is on disk. No line end.
    void WriteRaw(std::string_view bytes);

    void Close();

    // Whether the stop test has ended a wait: the file is then incomplete.
    bool Stopped() const { return stopped_; }

  private:
    void FlushIfFull();
    void Flush();
    void Send(std::string_view bytes);

    TextEncoding encoding_;
    StopTest stop_;
    bool stopped_ = false;
    std::string buffer_;
    FileReplacement file_;
};

} // namespace tunedex
