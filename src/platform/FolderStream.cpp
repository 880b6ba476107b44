#include "FolderStream.h"

#include "RunTimeError.h"

#include <cerrno>

namespace tunedex {

FolderStream::FolderStream(const std::string& path) {
    do {
        stream_.reset(opendir(path.c_str()));
    } while (!stream_ && errno == EINTR);
}

FolderStream::FolderStream(UniqueFd folder) : stream_(folder ? fdopendir(folder.Get()) : nullptr) {
    if (stream_) {
        (void)folder.Release(); // the stream owns it now
    }
}

const dirent* FolderStream::Next() {
    const dirent* entry = nullptr;
    do {
        errno = 0;
        entry = readdir(stream_.get());
    } while (entry == nullptr && errno == EINTR);
    if (entry == nullptr && errno != 0) {
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
    return entry;
}

} // namespace tunedex
