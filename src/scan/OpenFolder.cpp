#include "OpenFolder.h"

#include "RunTimeError.h"

#include <cerrno>
#include <utility>

namespace tunedex {

OpenFolder::OpenFolder(std::string path, std::string_view baseFolder)
    : path_(std::move(path)), baseFolder_(baseFolder), stream_(path_) {
    if (!stream_) {
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
}

std::optional<FolderEntry> OpenFolder::Next() {
    if (next_ < entries_.size()) {
        const FolderEntry entry = EntryAt(next_);
        next_ += EntryBytes(next_);
        return entry;
    }
    const dirent* entry = atEnd_ ? nullptr : stream_.Next();
    if (entry == nullptr) {
        atEnd_ = true;
        return std::nullopt;
    }
    return FolderEntry{static_cast<const char*>(entry->d_name), entry->d_type};
}

void OpenFolder::ReadAhead(std::size_t most) {
    for (std::size_t count = 0; count < most && !atEnd_; ++count) {
        if (const dirent* entry = stream_.Next()) {
            entries_ += static_cast<char>(entry->d_type);
            entries_.append(static_cast<const char*>(entry->d_name)) += '\0';
        } else {
            atEnd_ = true;
        }
    }
}

} // namespace tunedex
