#include "TrackInfo.h"

#include "StoredTexts.h"

#include <cstddef>
#include <span>

namespace tunedex {

void TrackInfo::Clear() {
    constexpr std::size_t kMostKept = 512;
    const auto clear = [this](std::string TrackInfo::*member) {
        std::string& value = this->*member;
        if (value.capacity() > kMostKept) {
            std::string().swap(value); // an assignment would keep the memory
        }
        value.clear();
    };
    for (const StoredText& text : std::span(kStoredTexts).subspan<1>()) { // all but FullPath
        clear(text.read);
    }
    for (const ExtraText& text : kExtraTexts) {
        clear(text.read);
    }
    FileSize = 0;
    Seconds = 0;
    TagType = kNoTag;
    LongFields.clear();
}

} // namespace tunedex
