#include "TagLayout.h"

#include "RunTimeError.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::uint64_t kId3v1Bytes = sizeof(Id3v1Bytes);
constexpr std::uint64_t kApeHeaderBytes = 32; // and of the footer
constexpr std::string_view kApeMark = "APETAGEX";
constexpr std::string_view kLyricsBegin = "LYRICSBEGIN";
constexpr std::uint64_t kLyricsEndBytes = 9; // "LYRICSEND" or "LYRICS200"

std::uint32_t LittleEndian32(std::string_view bytes) {
    const auto at = [bytes](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])}; };
    return at(0) | at(1) << 8U | at(2) << 16U | at(3) << 24U;
}

std::string_view AsChars(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// An APEv2 header or footer. Offset/width: mark 0/8, version 8/4, bytes of items and footer 12/4, number of
// items 16/4, flags 20/4, reserved 24/8; numbers are little-endian.
struct ApeFrame {
    std::uint64_t itemsAndFooter;
    bool hasHeader;
};

std::optional<ApeFrame> ParseApeFrame(std::string_view bytes) {
    constexpr std::uint32_t kHasHeader = 0x80000000U;
    if (bytes.size() < kApeHeaderBytes || !bytes.starts_with(kApeMark)) {
        return std::nullopt;
    }
    const ApeFrame frame{LittleEndian32(bytes.substr(12)),
                         (LittleEndian32(bytes.substr(20)) & kHasHeader) != 0};
    return frame.itemsAndFooter < kApeHeaderBytes ? std::nullopt : std::optional(frame);
}

// The end of a file, most of whose reads one block serves.
class FileEnd {
  public:
    explicit FileEnd(ByteSource& file) : file_(file), blockStart_(file.Size()) {
        const std::size_t count = std::min<std::uint64_t>(block_.size(), file.Size());
        const std::span<std::uint8_t> wanted = std::span(block_).first(count);
        blockStart_ = file.Size() - count;
        blockBytes_ = file.Read(blockStart_, wanted);
    }

    // `count` bytes that end at `end`; empty if there are not as many before it. Valid until the next call.
    std::string_view Before(std::uint64_t end, std::size_t count) {
        if (end < count) {
            return {};
        }
        const std::uint64_t start = end - count;
        if (start >= blockStart_ && end - blockStart_ <= blockBytes_) {
            return AsChars(block_).substr(start - blockStart_, count);
        }
        other_.resize(count);
        const std::span<std::uint8_t> buffer(reinterpret_cast<std::uint8_t*>(other_.data()), count);
        return file_.Read(start, buffer) == count ? std::string_view(other_) : std::string_view();
    }

  private:
    ByteSource& file_;
    std::uint64_t blockStart_;
    std::size_t blockBytes_ = 0;
    // ID3v1 and what may show another tag before it. Filled in the constructor.
    std::array<std::uint8_t, 2 * kId3v1Bytes + kApeHeaderBytes> block_;
    std::string other_;
};

// Removes the tags at the end one by one.
class EndTags {
  public:
    EndTags(ByteSource& file, TagLayout& layout) : bytes_(file), layout_(layout), end_(file.Size()) {}

    void Remove() {
        constexpr int kMostTags = 32; // bounds the search of a file that is all tags
        for (int i = 0; i < kMostTags && (RemoveId3v1() || RemoveApev2() || RemoveLyrics() || RemoveId3v2());
             ++i) {
        }
        layout_.audioEnd = end_;
    }

  private:
    bool RemoveId3v1() {
        std::string_view tag = bytes_.Before(end_, kId3v1Bytes);
        if (!tag.starts_with("TAG")) {
            return false;
        }
        if (tag.starts_with("TAGEX")) { // perhaps the middle of "APETAGEX"
            if (bytes_.Before(end_, kId3v1Bytes + 3).starts_with("APE")) {
                return false;
            }
            tag = bytes_.Before(end_, kId3v1Bytes);
        }
        if (end_ == layout_.audioEnd) { // the last tag of the file
            std::copy(tag.begin(), tag.end(), layout_.id3v1.emplace().begin());
        }
        end_ -= kId3v1Bytes;
        return true;
    }

    bool RemoveApev2() {
        const auto footer = ParseApeFrame(bytes_.Before(end_, kApeHeaderBytes));
        if (!footer || footer->itemsAndFooter > end_) {
            return false;
        }
        const ApeItems items{end_ - footer->itemsAndFooter, end_ - kApeHeaderBytes};
        end_ = items.start - (footer->hasHeader ? std::min(items.start, kApeHeaderBytes) : 0);
        if (!layout_.apev2) {
            layout_.apev2 = items;
        }
        return true;
    }

    bool RemoveLyrics() {
        const std::string_view mark = bytes_.Before(end_, kLyricsEndBytes);
        return mark == "LYRICS200" ? RemoveLyrics2() : mark == "LYRICSEND" && RemoveLyrics1();
    }

    // Lyrics3 v2: "LYRICSBEGIN", fields, their length with "LYRICSBEGIN" in six digits, "LYRICS200".
    bool RemoveLyrics2() {
        constexpr std::uint64_t kDigits = 6;
        const std::string_view digits = bytes_.Before(end_ - kLyricsEndBytes, kDigits);
        std::uint64_t size = 0;
        for (const char digit : digits) {
            if (digit < '0' || digit > '9') {
                return false;
            }
            size = size * 10 + static_cast<std::uint64_t>(digit - '0');
        }
        const std::uint64_t fieldsEnd = end_ - kLyricsEndBytes - digits.size();
        if (digits.empty() || size > fieldsEnd || size < kLyricsBegin.size() ||
            bytes_.Before(fieldsEnd - size + kLyricsBegin.size(), kLyricsBegin.size()) != kLyricsBegin) {
            return false;
        }
        end_ = fieldsEnd - size;
        return true;
    }

    // Lyrics3 v1: "LYRICSBEGIN", at most 5100 bytes of text, "LYRICSEND".
    bool RemoveLyrics1() {
        constexpr std::uint64_t kMostBytes = 5100 + 11 + kLyricsEndBytes;
        const std::uint64_t count = std::min(end_, kMostBytes);
        const std::size_t begin = bytes_.Before(end_, count).rfind(kLyricsBegin);
        if (begin == std::string_view::npos) {
            return false;
        }
        end_ = end_ - count + begin;
        return true;
    }

    // An ID3v2.4 tag with a footer (ID3v2.4 structure section 3.4).
    bool RemoveId3v2() {
        std::string footer(bytes_.Before(end_, kId3v2HeaderBytes));
        if (!footer.starts_with("3DI")) {
            return false;
        }
        footer.replace(0, 3, "ID3");
        const auto header =
            ParseId3v2Header({reinterpret_cast<const std::uint8_t*>(footer.data()), footer.size()});
        if (!header || header->tagBytes > end_) {
            return false;
        }
        end_ -= header->tagBytes;
        return true;
    }

    FileEnd bytes_;
    TagLayout& layout_;
    std::uint64_t end_;
};

void FindStartTags(ByteSource& file, TagLayout& layout) {
    std::array<std::uint8_t, kTagStartBytes> start{};
    const std::span<const std::uint8_t> bytes = std::span(start).first(file.Read(0, start));
    layout.id3v2 = ParseId3v2Header(bytes);
    if (layout.apev2) {
        return;
    }
    if (const auto header = ParseApeFrame(AsChars(bytes))) {
        // Header, items and footer: the items end as many bytes from the start as items and footer take.
        layout.apev2 = ApeItems{kApeHeaderBytes, std::min(header->itemsAndFooter, file.Size())};
    }
}

} // namespace

TagLayout FindTags(ByteSource& file) {
    TagLayout layout;
    layout.audioEnd = file.Size();
    try {
        // The head first: the window of the file stays there, since the block at the end does not move it.
        std::array<std::uint8_t, 1> first{};
        file.Read(0, first);
        EndTags(file, layout).Remove();
        FindStartTags(file, layout);
    } catch (const RunTimeError&) {
        return layout;
    }
    return layout;
}

std::uint64_t LeadingTagBytes(std::span<const std::uint8_t> bytes) {
    if (const auto id3v2 = ParseId3v2Header(bytes)) {
        return id3v2->tagBytes;
    }
    const auto ape = ParseApeFrame(AsChars(bytes));
    return ape ? kApeHeaderBytes + ape->itemsAndFooter : 0;
}

} // namespace tunedex
