// The texts of a track while tags are read: values are split, decoded, joined, and merged between tags.
#pragma once

#include "CodePages.h"
#include "LongText.h"
#include "TrackInfo.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tunedex {

using TagField = std::string TrackInfo::*;

// The encodings of an ID3v2 text, by the byte in front of it (ID3v2.4 structure section 4). Encoding 0 is
// the tag code page.
enum class TagEncoding : std::uint8_t { CodePage = 0, Utf16 = 1, Utf16BigEndian = 2, Utf8 = 3 };

// The encoding for that byte; nothing above 3.
std::optional<TagEncoding> TagEncodingOf(std::uint8_t byte);

// The offset behind the first NUL terminator of that encoding (two NULs at an even offset in UTF-16), or
// the size of the text if it has none.
std::size_t BehindTerminator(std::string_view bytes, TagEncoding encoding);

// One value of a text that may hold several.
struct TagValue {
    std::string_view bytes; // without byte-order mark and trailing blanks
    TagEncoding encoding;   // for both UTF-16 encodings, see `order`
    ByteOrder order;
};

// Splits a text at its NUL terminators.
class TagValues {
  public:
    TagValues(std::string_view bytes, TagEncoding encoding);

    // The next value that is not empty; nothing at the end.
    std::optional<TagValue> Next();

  private:
    std::string_view rest_;
    TagEncoding encoding_;
    ByteOrder order_;
};

// How the values of a text are read: as they are, or as genres of a TCON frame.
enum class ValueKind { Text, Genre };

// Sets the texts of a track that tags hold. Texts of kLongTextBytes or more are shared in the pool, if there
// is one.
class TagTexts {
  public:
    // All references must outlive this object. `longTexts` may be null.
    TagTexts(TrackInfo& track, const CodePage& codePage, bool moveTheArtists, LongTextPool* longTexts)
        : track_(track), codePage_(codePage), moveTheArtists_(moveTheArtists), longTexts_(longTexts) {}

    // Clears all of them.
    void Clear();

    // Whether the track has no such text yet.
    bool Lacks(TagField field) const;

    // Appends values that the text does not have, separated by "; ". A long text stays as it is.
    void Add(TagField field, TagValues values, ValueKind kind = ValueKind::Text);

    // One value, decoded; for short texts.
    std::string Decoded(const TagValue& value) const;

    // Puts defaults in the place of an empty artist or title and moves a leading "The" of the artists.
    void Finish();

    LongTextPool* LongTexts() const { return longTexts_; }

  private:
    class Builder;

    bool IsLong(TagField field) const;
    void AppendDecoded(std::string& text, const TagValue& value) const;
    std::size_t PieceOf(const TagValue& value) const;
    void AddValue(Builder& text, const TagValue& value, ValueKind kind) const;
    bool MovesThe(TagField field) const;
    void Store(TagField field, LongText text);

    TrackInfo& track_;
    const CodePage& codePage_;
    bool moveTheArtists_;
    LongTextPool* longTexts_;
};

} // namespace tunedex
