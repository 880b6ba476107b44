#include "FrameContentReader.h"

#include "LongText.h"

#include <algorithm>
#include <vector>

namespace tunedex {

namespace {

constexpr std::size_t kSmallContent = 512;

// In front of a comment's description: encoding and language (ID3v2.3 section 4.11).
constexpr std::size_t kCommentHeadBytes = 4;

std::string_view AsText(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Collects a content in pieces and shortens its runs of NULs: a frame may declare, and a sparse file contain,
// any number of them. An even number is left out, so that those of UTF-16 stay at even or at odd offsets;
// eight stay, which are a comment's encoding, language and empty description and an empty value.
class NulCollapser {
  public:
    explicit NulCollapser(LongText& text) : text_(text) {}

    void Append(std::string_view bytes) {
        while (!bytes.empty()) {
            const std::size_t nuls = std::min(bytes.find_first_not_of('\0'), bytes.size());
            nuls_ += nuls;
            bytes.remove_prefix(nuls);
            const std::size_t run = std::min(bytes.find('\0'), bytes.size());
            if (run > 0) {
                Flush();
                text_.Append(bytes.substr(0, run));
                bytes.remove_prefix(run);
            }
        }
    }
    void Flush() {
        constexpr std::string_view kMostNuls("\0\0\0\0\0\0\0\0\0", 9);
        text_.Append(kMostNuls.substr(0, nuls_ < 8 ? nuls_ : 8 + nuls_ % 2));
        nuls_ = 0;
    }

  private:
    LongText& text_;
    std::uint64_t nuls_ = 0; // at the end, not appended yet
};

// Reads `size` bytes, fewer only at the end, and appends them to `text` without superfluous NULs. Returns the
// number read; nothing, with the position where it was, if they are not what `unsynchronised` says.
std::optional<std::uint64_t> ReadLarge(TagBytes& bytes, std::uint64_t size, bool unsynchronised,
                                       LongText& text, LongTextPool::Turn& turn) {
    constexpr std::uint64_t kPiece = 65536;
    std::vector<std::uint8_t> piece(std::min(size, kPiece));
    NulCollapser collapser(text);
    Resynchroniser resynchroniser;
    std::uint64_t done = 0;
    while (done < size) {
        const std::size_t wanted = std::min(size - done, kPiece);
        const std::size_t got = bytes.Read(std::span(piece).first(wanted));
        done += got;
        const std::span<std::uint8_t> read = std::span(piece).first(got);
        const std::size_t count = unsynchronised ? resynchroniser.Decode(read) : got;
        if (unsynchronised && resynchroniser.Failed()) {
            bytes.Back(done);
            return std::nullopt;
        }
        turn.Reach(text.View().size() + count);
        collapser.Append(AsText(read.first(count)));
        if (got < wanted) {
            break;
        }
    }
    collapser.Flush();
    return done;
}

// Undoes the unsynchronisation of a small content, unless its bytes cannot be unsynchronised ones.
std::span<std::uint8_t> Resynchronised(std::span<std::uint8_t> bytes) {
    std::array<std::uint8_t, kSmallContent> copy; // NOLINT(cppcoreguidelines-pro-type-member-init): copied to
    std::copy(bytes.begin(), bytes.end(), copy.begin());
    Resynchroniser resynchroniser;
    const std::size_t count = resynchroniser.Decode(std::span(copy).first(bytes.size()));
    if (resynchroniser.Failed()) {
        return bytes;
    }
    std::copy_n(copy.begin(), count, bytes.begin());
    return bytes.first(count);
}

// The first four digits in a row; empty if there are none.
std::string FirstYear(std::string_view date) {
    std::size_t digits = 0;
    for (std::size_t i = 0; i < date.size(); ++i) {
        digits = date[i] >= '0' && date[i] <= '9' ? digits + 1 : 0;
        if (digits == 4) {
            return std::string(date.substr(i - 3, 4));
        }
    }
    return {};
}

} // namespace

void ReadText(TagBytes& bytes, std::uint64_t size, TagField field, TagEncoding encoding, TagTexts& texts) {
    LongTextPool::Turn turn(texts.LongTexts());
    LongText content;
    ReadLarge(bytes, size, false, content, turn);
    texts.Add(field, TagValues(content.View(), encoding));
}

FrameFormat FrameFormatOf(unsigned version, std::uint8_t flags, bool tagUnsynchronised) {
    FrameFormat format;
    if (version == 3) {
        constexpr unsigned kCompressedOrEncrypted = 0xC0;
        constexpr unsigned kGrouped = 0x20;
        format.readable = (flags & kCompressedOrEncrypted) == 0;
        format.prefixBytes = (flags & kGrouped) != 0 ? 1 : 0;
    } else if (version == 4) {
        constexpr unsigned kGrouped = 0x40;
        constexpr unsigned kCompressedOrEncrypted = 0x0C;
        constexpr unsigned kUnsynchronised = 0x02;
        constexpr unsigned kDataLength = 0x01;
        format.readable = (flags & kCompressedOrEncrypted) == 0;
        format.unsynchronised = tagUnsynchronised || (flags & kUnsynchronised) != 0;
        format.prefixBytes = ((flags & kGrouped) != 0 ? 1U : 0U) + ((flags & kDataLength) != 0 ? 4U : 0U);
    }
    return format;
}

bool FrameTexts::Read(TagBytes& bytes, const FrameUse& use, const FrameFormat& format, std::uint64_t size) {
    if (!format.readable || size <= format.prefixBytes) {
        const bool whole = size <= bytes.Left();
        bytes.Skip(size);
        return whole;
    }
    bytes.Skip(format.prefixBytes);
    const std::uint64_t contentSize = size - format.prefixBytes;
    if (contentSize <= kSmallContent) {
        std::array<std::uint8_t, kSmallContent>
            buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): read to
        std::span<std::uint8_t> content = std::span(buffer).first(contentSize);
        const std::size_t got = bytes.Read(content);
        content = content.first(got);
        Take(use, AsText(format.unsynchronised ? Resynchronised(content) : content), got < contentSize);
        return got == contentSize;
    }
    LongTextPool::Turn turn(texts_.LongTexts());
    LongText content;
    auto got = ReadLarge(bytes, contentSize, format.unsynchronised, content, turn);
    if (!got) {
        content = LongText();
        got = ReadLarge(bytes, contentSize, false, content, turn);
    }
    Take(use, content.View(), got < contentSize);
    return got == contentSize;
}

void FrameTexts::Take(const FrameUse& use, std::string_view content, bool cut) {
    const auto encoding =
        content.empty() ? std::nullopt : TagEncodingOf(static_cast<std::uint8_t>(content.front()));
    if (!encoding) {
        return;
    }
    std::string_view bytes = content.substr(1);
    if (use.content == FrameContent::Comment) {
        TakeComment(content.substr(std::min(content.size(), kCommentHeadBytes)), *encoding);
        return;
    }
    if (cut) {
        bytes = bytes.substr(0, BehindTerminator(bytes, *encoding));
    }
    if (use.content == FrameContent::Date) {
        TakeDate(use.rank, bytes, *encoding);
    } else {
        texts_.Add(use.field, TagValues(bytes, *encoding),
                   use.content == FrameContent::Genre ? ValueKind::Genre : ValueKind::Text);
    }
}

void FrameTexts::TakeDate(int rank, std::string_view bytes, TagEncoding encoding) {
    constexpr std::size_t kLongestDate = 512;
    std::string& year = years_.at(static_cast<std::size_t>(rank));
    TagValues values(bytes.substr(0, kLongestDate), encoding);
    for (auto value = values.Next(); year.empty() && value; value = values.Next()) {
        year = FirstYear(texts_.Decoded(*value));
    }
}

void FrameTexts::TakeComment(std::string_view bytes, TagEncoding encoding) {
    // Offset/width: description 0/to its terminator, then the text.
    const std::size_t text = BehindTerminator(bytes, encoding);
    const bool described = TagValues(bytes.substr(0, text), encoding).Next().has_value();
    if (!described && texts_.Lacks(&TrackInfo::Comment)) {
        texts_.Add(&TrackInfo::Comment, TagValues(bytes.substr(text), encoding));
    }
}

void FrameTexts::Finish() {
    const auto found =
        std::find_if(years_.begin(), years_.end(), [](const std::string& year) { return !year.empty(); });
    if (texts_.Lacks(&TrackInfo::Year) && found != years_.end()) {
        texts_.Add(&TrackInfo::Year, TagValues(*found, TagEncoding::Utf8));
    }
}

} // namespace tunedex
