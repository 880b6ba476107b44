// Writes a text file. The only place where text is encoded into bytes on disk.
#pragma once

#include "FileReplacement.h"
#include "FileSystem.h"
#include "StopTest.h"
#include "UniqueFd.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

// The encoding of a file. Stray bytes are written unchanged, except by SettingsLine and, in part,
// Latin1References.
enum class TextEncoding {
    Windows1252References, // decimal character references for what Windows-1252 lacks: HTML, XHTML
    Latin1References,      // pages that hold no byte of Windows-1252 either; see AppendLatin1References
    Windows1252Questions,  // "?" for what Windows-1252 lacks
    Utf8,
    FileLine,     // EncodeFileLine for each line
    SettingsLine, // the same with stray bytes escaped, so that they survive a round trip
};

// Writes to a temporary file in the same folder, which Close() renames over the old file; see FileReplacement
// for the cases written in place. Without Close(), the destructor removes the temporary file and the old file
// is unchanged.
//
// A write to a full stream (FIFO, pipe, terminal) waits for its reader and polls the stop test meanwhile.
// Once the stop test ends the wait, the rest is dropped and Close() closes the incomplete file.
//
// The constructor, the writes and Close() raise 75 where the file or folder is not writable, 76 for a missing
// folder, 61 for a full disk, 52 for an impossible name, 57 for other failures.
class TextFile {
  public:
    // The best size of a Write() in bytes: a piece this large is passed to write() without a copy.
    static constexpr std::size_t kPieceBytes = 262144;

    // Also removes stale temporary files from the folder. For several files, pass one `cleaned` to scan each
    // folder only once.
    TextFile(const std::string& path, TextEncoding encoding, StopTest stop = {},
             CleanedFolders* cleaned = nullptr);
    // Writes to an open stream, such as standard output. A reader that goes away ends the writing as the stop
    // test does.
    TextFile(UniqueFd stream, TextEncoding encoding, StopTest stop = {});
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;
    ~TextFile() = default;

    // Encodes and writes text; any line breaks are the caller's.
    void Write(std::string_view text);
    // Writes text and CR LF.
    void WriteLine(std::string_view text);
    // Writes bytes without encoding, for example a path as stored on disk.
    void WriteRaw(std::string_view bytes);

    void Close();

    // Whether the stop test, or the end of the stream's reader, ended the writing; the file is then
    // incomplete.
    bool Stopped() const { return stopped_; }

  private:
    void FlushIfFull();
    void Flush();
    void Send(std::string_view bytes);

    TextEncoding encoding_;
    StopTest stop_;
    BrokenPipe brokenPipe_ = BrokenPipe::Raises;
    bool stopped_ = false;
    std::string buffer_;
    FileReplacement file_;
};

} // namespace tunedex
