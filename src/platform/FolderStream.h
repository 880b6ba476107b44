// Reads the entries of one folder in directory order.
#pragma once

#include "UniqueFd.h"

#include <dirent.h>
#include <memory>
#include <string>

namespace tunedex {

// Owns an open directory stream and closes it.
class FolderStream {
  public:
    // Opens the folder. On failure the stream is empty and errno says why.
    explicit FolderStream(const std::string& path);
    // Takes over an open folder. On failure, or without a descriptor, the stream is empty.
    explicit FolderStream(UniqueFd folder);

    explicit operator bool() const { return stream_ != nullptr; }
    // The folder's file descriptor; the stream keeps ownership.
    int Descriptor() const { return dirfd(stream_.get()); }

    // The next entry, including "." and ".."; valid until the next call; nullptr at the end. Raises the error
    // of a failed read.
    const dirent* Next();

  private:
    struct Close {
        void operator()(DIR* stream) const { closedir(stream); }
    };
    std::unique_ptr<DIR, Close> stream_;
};

} // namespace tunedex
