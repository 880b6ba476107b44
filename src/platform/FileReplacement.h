// Replaces a file atomically: writes to a temporary file in the same folder and renames it over the old one.
// Falls back to writing in place.
#pragma once

#include "TemporaryFiles.h"
#include "UniqueFd.h"

#include <string>
#include <sys/stat.h>
#include <utility>

namespace tunedex {

// The kernel follows symbolic links, so that its link protection in shared folders applies; the opened file
// is then located by device and inode. The temporary file has mode 0600 until it receives the mode,
// access-control list and user attributes of the old file, before any data is written.
//
// The file is written in place when the folder does not permit new files or replacing this one, when those
// permissions cannot be copied, when the folder of the real file cannot be reached, and when it is not a
// regular file (FIFO, terminal, device).
class FileReplacement {
  public:
    // Raises 75 where the file or its folder is not writable, or where the link may not be followed or leads
    // to a name that ends in .mp3; 76 for a missing folder; 52 for an impossible name; 57 for a FIFO without
    // a reader; other errors as ErrorFromErrno maps them.
    FileReplacement(const std::string& path, CleanedFolders* cleaned);
    // Writes in place to a file or stream that is open already.
    explicit FileReplacement(UniqueFd open) : written_(std::move(open)) {}
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    // Without Commit(), removes the temporary file; the old file is unchanged.
    ~FileReplacement();

    // The file to write to; non-blocking when it is not a regular file.
    int Descriptor() const { return written_.Get(); }

    // Closes the file and renames it into place. Raises the error of a failed close or rename.
    void Commit();

  private:
    void Open(const std::string& path);
    bool OpenNew(const std::string& path);
    void OpenExisting(UniqueFd file, const std::string& path, bool created);
    bool OpenFolderOf(const std::string& path);
    bool IsAt(const std::string& path, const struct stat& file);
    void Locate(const std::string& path, int file, const struct stat& status, bool created);
    bool ReplaceOld(int old, const struct stat& status);
    void CreateFresh();
    bool CreateTemporary(mode_t mode);
    void RemoveTemporary() noexcept;
    void RemovePlaceholder() noexcept;
    void Discard() noexcept;

    CleanedFolders* cleaned_ = nullptr;
    UniqueFd folder_;          // folder of the real file; none when that was not located
    std::string name_;         // name of the real file in folder_
    std::string temporary_;    // name of the temporary file; empty when written in place
    UniqueFd written_;         // the file being written
    bool placeholder_ = false; // name_ is an empty file, created only to resolve a dangling link
};

} // namespace tunedex
