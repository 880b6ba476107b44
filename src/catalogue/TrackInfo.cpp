#include "TrackInfo.h"

#include "StoredTexts.h"

#include <cstddef>

namespace tunedex {

void TrackInfo::Clear() {
    constexpr std::size_t kMostKept = 512;
    for (const StoredText& text : kStoredTexts) {
        if (text.read == &TrackInfo::FullPath) {
            continue;
        }
        std::string& value = this->*text.read;
        if (value.capacity() > kMostKept) {
            value = std::string();
        }
        value.clear();
    }
    FileSize = 0;
    Seconds = 0;
    TagType = kNoTag;
    LongFields.clear();
}

} // namespace tunedex
