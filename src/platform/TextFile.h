// A text file being written: the one place where texts become bytes on disk.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace tunedex {

// How a file's texts are encoded. Stray bytes are written as they are in all of them but the last.
enum class TextEncoding {
    Windows1252References, // what Windows-1252 lacks becomes a decimal character reference: HTML and XHTML
    Windows1252Questions,  // what Windows-1252 lacks becomes "?"
    Utf8,
    FileLine,     // each line for itself, as EncodeFileLine does, stray bytes as they are
    SettingsLine, // the same with stray bytes escaped, for files whose texts are read back
};

// The file is written aside in its own folder, under a short hidden name, and takes the old file's place when
// it is closed, following a symbolic link to the real file and keeping its permissions; where the folder does
// not allow that, it is written in place. Unless Close() has returned, the destructor removes what was
// written aside and the old file is still there.
//
// The constructor, the writes and Close() raise the error of what failed: 75 where the file or the folder may
// not be written, 76 for a folder that is not there, 61 for a full disk, 52 for an impossible name, 57 for
// other failures.
class TextFile {
  public:
    // How many bytes of text a writer best hands over at a time: that much goes to the system without a copy.
    static constexpr std::size_t kPieceBytes = 262144;

    TextFile(const std::string& path, TextEncoding encoding);
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;
    ~TextFile();

    // Text as it stands; line breaks within it are the caller's.
    void Write(std::string_view text);
    // Text and a line end, CR LF.
    void WriteLine(std::string_view text);
    // Bytes that no encoding touches: a path as it is on disk. No line end.
    void WriteRaw(std::string_view bytes);

    void Close();

  private:
    std::optional<struct stat> FindOld(std::string path);
    void Open(const std::optional<struct stat>& old);
    void FlushIfFull();
    void Flush();
    void Discard() noexcept;
    void CloseFolder() noexcept;

    TextEncoding encoding_;
    std::string buffer_;
    int folder_ = -1;     // the folder of the real file
    int descriptor_ = -1; // the file being written
    std::string name_;    // the real file's name in that folder
    std::string aside_;   // the name written under; empty when written in place
};

} // namespace tunedex
