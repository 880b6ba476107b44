// A file on its way to its place: written under a temporary name in the same folder and renamed over the old
// file, or written in place where that cannot be done.
#pragma once

#include "TemporaryFiles.h"
#include "UniqueFd.h"

#include <string>
#include <sys/stat.h>

namespace tunedex {

// Symbolic links are followed by the kernel, so its protection of links in shared folders applies; what it
// has opened is then found by device and inode. The temporary file has mode 0600 until it is given the old
// file's mode, access-control list and user attributes, before anything is written to it.
//
// The file is written in place where the folder takes no new file or lets nobody replace this one, where
// those permissions cannot be set, where the real file's folder cannot be reached, and when it is no regular
// file (a FIFO, a terminal, a device).
class FileReplacement {
  public:
    // Raises 75 where the file or its folder may not be written, the link may not be followed or leads to a
    // name that ends in .mp3; 76 for a folder that is not there; 52 for an impossible name; 57 for a FIFO
    // without a reader, and other errors as ErrorFromErrno names them.
    FileReplacement(const std::string& path, CleanedFolders* cleaned);
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    // Unless Commit() has returned, removes the temporary file; the old file is then as it was.
    ~FileReplacement();

    // The file to write to. Non-blocking where it is no regular file.
    int Descriptor() const { return written_.Get(); }

    // Closes the file and puts it in its place. Raises the error of a close or rename that fails.
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

    CleanedFolders* cleaned_;
    UniqueFd folder_;          // the real file's folder; none when the file is written in place unlocated
    std::string name_;         // the real file's name in it
    std::string temporary_;    // name of the temporary file; empty when written in place
    UniqueFd written_;         // the file being written
    bool placeholder_ = false; // name_ is an empty file that exists only to learn where a dangling link leads
};

} // namespace tunedex
