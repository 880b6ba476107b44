// A folder in the walk, open until the last of its files has been read.
#pragma once

#include "FolderStream.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tunedex {

struct FolderEntry {
    const char* name;
    unsigned char type; // DT_REG, DT_DIR ...; DT_UNKNOWN where the file system does not tell
};

// Used by one thread at a time; the destructor may run on any thread. Files are opened relative to its
// descriptor.
class OpenFolder {
  public:
    // Raises error 76 if the folder does not exist, 75 if it may not be listed, 67 without a free file
    // descriptor.
    OpenFolder(std::string path, std::string_view baseFolder);

    const std::string& Path() const { return path_; } // ends in a separator
    const std::string& BaseFolder() const { return baseFolder_; }
    int Descriptor() const { return stream_.Descriptor(); }

    // The next entry in directory order, "." and ".." included; nothing at the end. The name is valid until
    // the next call. Raises the error of a failed read.
    std::optional<FolderEntry> Next();

    // Reads up to `most` entries into memory, from where Next() takes them. Raises the error of a failed
    // read.
    void ReadAhead(std::size_t most);
    // The entries in memory that Next() has not returned yet.
    template <typename Visitor> void ForEachReadAhead(Visitor visit) const {
        for (std::size_t at = next_; at < entries_.size(); at += EntryBytes(at)) {
            visit(EntryAt(at));
        }
    }

  private:
    FolderEntry EntryAt(std::size_t at) const {
        return {entries_.data() + at + 1, static_cast<unsigned char>(entries_[at])};
    }
    std::size_t EntryBytes(std::size_t at) const { return entries_.find('\0', at + 1) + 1 - at; }

    std::string path_;
    std::string baseFolder_;
    FolderStream stream_;
    std::string entries_; // of each entry: the type, the name, a NUL
    std::size_t next_ = 0;
    bool atEnd_ = false;
};

} // namespace tunedex
