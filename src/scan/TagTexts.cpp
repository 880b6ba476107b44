#include "TagTexts.h"

#include "TagGenres.h"
#include "TagText.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tunedex {

namespace {

constexpr std::array kTagFields = {&TrackInfo::Title,  &TrackInfo::Artist,      &TrackInfo::Album,
                                   &TrackInfo::Year,   &TrackInfo::Genre,       &TrackInfo::Track,
                                   &TrackInfo::Disc,   &TrackInfo::AlbumArtist, &TrackInfo::Composer,
                                   &TrackInfo::Comment};

constexpr std::string_view kValueSeparator = "; ";

// A value is decoded in pieces of this many bytes, which bounds the memory beside that of the text itself.
constexpr std::size_t kPieceBytes = 4096;

bool IsUtf16(TagEncoding encoding) {
    return encoding == TagEncoding::Utf16 || encoding == TagEncoding::Utf16BigEndian;
}

std::string_view WithoutBlanksAtEnd(std::string_view bytes, TagEncoding encoding, ByteOrder order) {
    if (!IsUtf16(encoding)) {
        return TrimBlanksRight(bytes);
    }
    const std::string_view blank =
        order == ByteOrder::LittleEndian ? std::string_view(" \0", 2) : std::string_view("\0 ", 2);
    bytes = bytes.substr(0, bytes.size() / 2 * 2);
    while (bytes.ends_with(blank)) {
        bytes.remove_suffix(2);
    }
    return bytes;
}

bool IsHighSurrogate(std::string_view unit, ByteOrder order) {
    const auto high = static_cast<unsigned char>(unit[order == ByteOrder::LittleEndian ? 1 : 0]);
    return high >= 0xD8 && high <= 0xDB;
}

// The same as CodePage::PieceOf() for UTF-16.
std::size_t Utf16PieceOf(std::string_view bytes, ByteOrder order) {
    if (bytes.size() <= kPieceBytes) {
        return bytes.size();
    }
    return IsHighSurrogate(bytes.substr(kPieceBytes - 2, 2), order) ? kPieceBytes - 2 : kPieceBytes;
}

// A longer value is no list of genres; resolving takes its memory several times.
constexpr std::size_t kLongestGenre = 65536;

// Whether one of the values joined in `text` is `value`.
bool HasValue(std::string_view text, std::string_view value) {
    for (std::size_t at = text.find(value); at != std::string_view::npos; at = text.find(value, at + 1)) {
        const std::string_view before = text.substr(0, at);
        const std::string_view behind = text.substr(at + value.size());
        if ((before.empty() || before.ends_with(kValueSeparator)) &&
            (behind.empty() || behind.starts_with(kValueSeparator))) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<TagEncoding> TagEncodingOf(std::uint8_t byte) {
    return byte <= 3 ? std::optional(static_cast<TagEncoding>(byte)) : std::nullopt;
}

std::size_t BehindTerminator(std::string_view bytes, TagEncoding encoding) {
    if (!IsUtf16(encoding)) {
        const std::size_t nul = bytes.find('\0');
        return nul == std::string_view::npos ? bytes.size() : nul + 1;
    }
    std::size_t nul = bytes.find('\0');
    while (nul != std::string_view::npos) {
        nul = nul / 2 * 2;
        if (nul + 1 < bytes.size() && bytes[nul] == '\0' && bytes[nul + 1] == '\0') {
            return nul + 2;
        }
        nul = bytes.find('\0', nul + 2);
    }
    return bytes.size();
}

TagValues::TagValues(std::string_view bytes, TagEncoding encoding)
    : rest_(bytes), encoding_(encoding),
      order_(encoding == TagEncoding::Utf16BigEndian ? ByteOrder::BigEndian : ByteOrder::LittleEndian) {}

std::optional<TagValue> TagValues::Next() {
    const std::size_t unit = IsUtf16(encoding_) ? 2 : 1;
    while (!rest_.empty()) {
        const std::size_t end = BehindTerminator(rest_, encoding_);
        std::string_view bytes = rest_.substr(0, end);
        rest_.remove_prefix(end);
        if (bytes.ends_with(std::string_view("\0\0", unit)) && bytes.size() % unit == 0) {
            bytes.remove_suffix(unit);
        }
        // Some writers put a mark in front of the first value only: the others have its order.
        if (unit == 2 && (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))) {
            order_ = bytes.front() == '\xFF' ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
            bytes.remove_prefix(2);
        }
        bytes = WithoutBlanksAtEnd(bytes, encoding_, order_);
        if (!bytes.empty()) {
            return TagValue{bytes, encoding_, order_};
        }
    }
    return std::nullopt;
}

// A text that grows: in the track while it is short, in a LongText from then on.
class TagTexts::Builder {
  public:
    explicit Builder(std::string& text) : text_(text), repeats_(!text.empty()) {}

    bool IsEmpty() const { return text_.empty() && long_.View().empty(); }
    // Whether values are added to those of an earlier frame.
    bool Repeats() const { return repeats_; }
    std::string& Short() { return text_; }
    bool IsLong() const { return !long_.View().empty(); }
    LongText& Long() { return long_; }

    void Separate() {
        if (!IsEmpty()) {
            Append(kValueSeparator);
        }
    }
    void Append(std::string_view piece) {
        if (IsLong()) {
            long_.Append(piece);
        } else {
            text_ += piece;
        }
        Settle();
    }
    // Turns a text that has become long into a LongText. The record may wait in a queue: it keeps no memory.
    void Settle() {
        if (text_.size() >= kLongTextBytes) {
            long_.Append(text_);
            std::string().swap(text_); // assigning an empty string would keep the memory
        }
    }

  private:
    std::string& text_;
    LongText long_;
    bool repeats_;
};

void TagTexts::Clear() {
    for (const TagField field : kTagFields) {
        (track_.*field).clear();
    }
    track_.LongFields.clear(); // only these texts can be long
}

bool TagTexts::IsLong(TagField field) const {
    return std::any_of(track_.LongFields.begin(), track_.LongFields.end(),
                       [field](const LongField& held) { return held.field == field; });
}

bool TagTexts::Lacks(TagField field) const {
    return (track_.*field).empty() && !IsLong(field);
}

void TagTexts::AppendDecoded(std::string& text, const TagValue& value) const {
    if (value.encoding == TagEncoding::CodePage) {
        codePage_.AppendDecoded(text, value.bytes);
    } else if (value.encoding == TagEncoding::Utf8) {
        AppendDecodedUtf8(text, value.bytes);
    } else {
        AppendDecodedUtf16(text, value.bytes, value.order);
    }
}

std::string TagTexts::Decoded(const TagValue& value) const {
    std::string text;
    AppendDecoded(text, value);
    return text;
}

std::size_t TagTexts::PieceOf(const TagValue& value) const {
    if (value.encoding == TagEncoding::CodePage) {
        return codePage_.PieceOf(value.bytes, kPieceBytes);
    }
    return value.encoding == TagEncoding::Utf8 ? Utf8PieceOf(value.bytes, kPieceBytes)
                                               : Utf16PieceOf(value.bytes, value.order);
}

void TagTexts::AddValue(Builder& text, const TagValue& value, ValueKind kind) const {
    if (kind == ValueKind::Genre && value.bytes.size() <= kLongestGenre) {
        const std::string decoded = Decoded(value);
        for (const std::string_view genre : GenresOf(decoded)) {
            if (!text.Repeats() || !HasValue(text.Short(), genre)) {
                text.Separate();
                text.Append(genre);
            }
        }
        return;
    }
    const bool isShort = value.bytes.size() < kLongTextBytes;
    if (isShort && text.Repeats() && !text.IsLong() && HasValue(text.Short(), Decoded(value))) {
        return;
    }
    text.Separate();
    for (TagValue rest = value; !rest.bytes.empty();) {
        const std::size_t piece = PieceOf(rest);
        const TagValue first{rest.bytes.substr(0, piece), rest.encoding, rest.order};
        if (text.IsLong()) {
            text.Append(Decoded(first));
        } else {
            AppendDecoded(text.Short(), first);
            text.Settle();
        }
        rest.bytes.remove_prefix(piece);
    }
}

void TagTexts::Add(TagField field, TagValues values, ValueKind kind) {
    if (IsLong(field) || (track_.*field).size() >= kLongTextBytes) {
        return;
    }
    Builder text(track_.*field);
    while (const auto value = values.Next()) {
        AddValue(text, *value, kind);
    }
    if (text.IsLong()) {
        Store(field, std::move(text.Long()));
    }
}

bool TagTexts::MovesThe(TagField field) const {
    return moveTheArtists_ && (field == &TrackInfo::Artist || field == &TrackInfo::AlbumArtist);
}

void TagTexts::Store(TagField field, LongText text) {
    if (longTexts_ == nullptr) {
        track_.*field = text.View();
        return;
    }
    FinishArtist(text, MovesThe(field));
    track_.Set(field, longTexts_->Share(std::move(text)));
}

void TagTexts::Finish() {
    if (Lacks(&TrackInfo::Title)) {
        FinishTitle(track_.Title);
    }
    if (!IsLong(&TrackInfo::Artist)) {
        FinishArtist(track_.Artist, moveTheArtists_);
    }
    if (!track_.AlbumArtist.empty()) {
        FinishArtist(track_.AlbumArtist, moveTheArtists_);
    }
}

} // namespace tunedex
