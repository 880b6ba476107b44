#include "Apev2.h"

#include "FrameContentReader.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tunedex {

namespace {

// Of an item. Offset/width: bytes of the value 0/4, flags 4/4, both little-endian; key from 8 to its NUL.
constexpr std::size_t kItemHeadBytes = 8;
constexpr std::size_t kLongestKey = 255;

struct ApeKey {
    std::string_view upperCase;
    TagField field;
};

constexpr std::array kApeKeys = {ApeKey{"TITLE", &TrackInfo::Title},
                                 ApeKey{"ARTIST", &TrackInfo::Artist},
                                 ApeKey{"ALBUM", &TrackInfo::Album},
                                 ApeKey{"YEAR", &TrackInfo::Year},
                                 ApeKey{"GENRE", &TrackInfo::Genre},
                                 ApeKey{"TRACK", &TrackInfo::Track},
                                 ApeKey{"DISC", &TrackInfo::Disc},
                                 ApeKey{"ALBUM ARTIST", &TrackInfo::AlbumArtist},
                                 ApeKey{"ALBUMARTIST", &TrackInfo::AlbumArtist},
                                 ApeKey{"COMPOSER", &TrackInfo::Composer},
                                 ApeKey{"COMMENT", &TrackInfo::Comment}};

TagField FieldOfKey(std::string_view key) {
    const auto* const found = std::find_if(kApeKeys.begin(), kApeKeys.end(), [key](const ApeKey& known) {
        return known.upperCase.size() == key.size() && EndsInIgnoringCase(key, known.upperCase);
    });
    return found == kApeKeys.end() ? nullptr : found->field;
}

std::uint32_t Number32(std::span<const std::uint8_t> bytes) {
    return bytes[0] | std::uint32_t{bytes[1]} << 8U | std::uint32_t{bytes[2]} << 16U |
           std::uint32_t{bytes[3]} << 24U;
}

struct ApeItem {
    TagField field = nullptr; // null: not used
    std::uint64_t value = 0;  // offset
    std::uint64_t valueBytes = 0;
};

// The item at `offset`; nothing where there is no whole one.
std::optional<ApeItem> ItemAt(ByteSource& file, std::uint64_t offset, std::uint64_t end) {
    constexpr std::uint32_t kKindBits = 6; // bits 1 and 2: 0 is a text
    std::array<std::uint8_t, kItemHeadBytes + kLongestKey + 1>
        bytes; // NOLINT(cppcoreguidelines-pro-type-member-init)
    const std::size_t wanted = std::min<std::uint64_t>(bytes.size(), end - offset);
    const std::size_t got = file.Read(offset, std::span(bytes).first(wanted));
    const std::string_view head(reinterpret_cast<const char*>(bytes.data()), got);
    const std::size_t keyEnd = head.find('\0', kItemHeadBytes);
    if (got <= kItemHeadBytes || keyEnd == std::string_view::npos) {
        return std::nullopt;
    }
    ApeItem item;
    item.value = offset + keyEnd + 1;
    item.valueBytes = Number32(bytes);
    if ((Number32(std::span(bytes).subspan(4)) & kKindBits) == 0) {
        item.field = FieldOfKey(head.substr(kItemHeadBytes, keyEnd - kItemHeadBytes));
    }
    return item.valueBytes > end - item.value ? std::nullopt : std::optional(item);
}

} // namespace

void ReadApev2(ByteSource& file, const ApeItems& items, TagTexts& texts) {
    const std::uint64_t end = std::min(items.end, file.Size());
    for (std::uint64_t offset = items.start; offset < end;) {
        const auto item = ItemAt(file, offset, end);
        if (!item) {
            return;
        }
        if (item->field != nullptr && texts.Lacks(item->field)) {
            PlainTagBytes bytes(file, item->value, end);
            ReadText(bytes, item->valueBytes, item->field, TagEncoding::Utf8, texts);
        }
        offset = item->value + item->valueBytes;
    }
}

} // namespace tunedex
