// Counts and sums of one run.
#pragma once

#include <cstdint>
#include <set>
#include <string>

namespace tunedex {

enum class UnreadKind { Folder, File };

// The folders and files that could not be read, each once, whichever pass found it.
struct UnreadPaths {
    std::set<std::string> folders;
    std::set<std::string> files;

    // Returns whether the path is new.
    bool Add(UnreadKind kind, const std::string& path) {
        return (kind == UnreadKind::Folder ? folders : files).insert(path).second;
    }
    bool Any() const { return !folders.empty() || !files.empty(); }
};

struct RunTotals {
    std::int32_t FoundCount = 0;    // MP3 files found by the counting pass
    std::int32_t StoredCount = 0;   // records stored by the collecting pass
    std::int32_t UntaggedCount = 0; // of those, records without a tag
    // Of those, records of classic readers whose tag the modern readers would read otherwise.
    std::int32_t ModernTagCount = 0;
    UnreadPaths Unread;
    double TotalBytes = 0;
    double TotalSeconds = 0; // sum of whole seconds per file
};

} // namespace tunedex
