#include "References.h"

#include "Text.h"

#include <algorithm>
#include <utility>

namespace tunedex::test {

namespace {

void ExchangeMovingFields(TrackInfo& a, TrackInfo& b) {
    std::swap(a, b);
    // Required: these members stay with the slot.
    std::swap(a.BaseFolder, b.BaseFolder);
    std::swap(a.Mode, b.Mode);
    std::swap(a.MpegType, b.MpegType);
    std::swap(a.TagType, b.TagType);
}

int Compare(const TrackInfo& earlier, const TrackInfo& later) {
    if (const int artist = UpperCase(earlier.Artist).compare(UpperCase(later.Artist)); artist != 0) {
        return artist;
    }
    if (const int album = UpperCase(earlier.Album).compare(UpperCase(later.Album)); album != 0) {
        return album;
    }
    return UpperCase(earlier.Title).compare(UpperCase(later.Title));
}

bool OutOfOrder(const TrackInfo& earlier, const TrackInfo& later, std::int16_t sortOrder) {
    const int order = Compare(earlier, later);
    return (sortOrder == 1 && order > 0) || (sortOrder == 2 && order < 0);
}

struct EndOfBytes {};

class Cursor {
  public:
    Cursor(std::string_view bytes, std::uint64_t position) : bytes_(bytes), position(position) {}

    bool AtEnd() const { return position > bytes_.size(); }
    unsigned Read() const {
        if (AtEnd()) {
            throw EndOfBytes();
        }
        return static_cast<unsigned char>(bytes_[position - 1]);
    }

  private:
    std::string_view bytes_;

  public:
    std::uint64_t position; // 1-based
};

std::string BitString(std::string_view bytes) {
    std::string bits;
    for (const char byte : bytes) {
        for (unsigned bit = 8; bit-- > 0;) {
            bits += ((static_cast<unsigned char>(byte) >> bit) & 1U) != 0 ? '1' : '0';
        }
    }
    return bits;
}

bool Rejected(const ReferenceHeader& header) {
    const std::string version = header.bits.substr(11, 2);
    const std::string layer = header.bits.substr(13, 2);
    const std::string sampleRate = header.bits.substr(20, 2);
    const std::string bitrate = header.bits.substr(16, 4);
    return version == "01" || layer == "00" || sampleRate == "11" || (!header.vbr && bitrate == "1111");
}

// One pass of the search. Returns whether it accepted a header.
bool SearchOnce(std::string_view bytes, Cursor& cursor, ReferenceHeader& header) {
    unsigned first = 0;
    while (!cursor.AtEnd() && first != 255) {
        first = cursor.Read();
        ++cursor.position;
    }
    if (first != 255) {
        throw EndOfBytes();
    }
    if (cursor.Read() < 225) {
        return false;
    }
    ++cursor.position;
    if (cursor.Read() >= 236) {
        --cursor.position;
        return false;
    }
    ++cursor.position;
    cursor.Read();
    cursor.position -= 4 - 1; // back to the first byte, 1-based
    header.offset = cursor.position - 1;
    const std::string_view buffer = bytes.substr(header.offset, 1400);
    const std::size_t xing = buffer.find("Xing");
    header.vbr = xing != std::string_view::npos;
    if (header.vbr) {
        const std::uint64_t count = header.offset + (xing + 1) + 8;
        header.frameCount = 0;
        for (unsigned i = 0; i < 8; ++i) {
            const unsigned byte = Cursor(bytes, count + i).Read();
            header.frameCount = i < 4 ? header.frameCount * 256 + byte : header.frameCount;
        }
    }
    header.bits = BitString(bytes.substr(header.offset, 4));
    if (Rejected(header)) {
        ++cursor.position;
        return false;
    }
    return true;
}

} // namespace

void ReferenceSort(std::vector<TrackInfo>& tracks, std::int16_t sortOrder) {
    const auto last = static_cast<std::int64_t>(tracks.size()) - 1;
    for (std::int64_t gap = last / 2 + 1; gap > 0; gap /= 2) {
        for (std::int64_t i = 1; i <= last - gap; ++i) {
            for (std::int64_t j = i; j >= 1; j -= gap) {
                TrackInfo& earlier = tracks[static_cast<std::size_t>(j)];
                TrackInfo& later = tracks[static_cast<std::size_t>(j + gap)];
                if (!OutOfOrder(earlier, later, sortOrder)) {
                    break;
                }
                ExchangeMovingFields(earlier, later);
            }
        }
    }
}

std::optional<ReferenceHeader> ReferenceSearch(std::string_view bytes, std::uint64_t searchPosition) {
    ReferenceHeader header;
    Cursor cursor(bytes, searchPosition);
    try {
        while (!SearchOnce(bytes, cursor, header)) {
        }
        return header;
    } catch (const EndOfBytes&) {
        return std::nullopt;
    }
}

std::size_t FailingByteSource::Read(std::uint64_t offset, std::span<std::uint8_t> buffer) {
    if (++reads_ == failAt_) {
        throw RunTimeError(ErrorNumber::DeviceInputOutput);
    }
    const std::size_t count =
        offset < bytes_.size() ? std::min<std::uint64_t>(buffer.size(), bytes_.size() - offset) : 0;
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(std::min<std::uint64_t>(offset, bytes_.size())),
                count, buffer.begin());
    return count;
}

} // namespace tunedex::test
