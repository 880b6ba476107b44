// Decoding of tag texts into UTF-8: code pages by their iconv names, UTF-8 and UTF-16. What cannot be decoded
// becomes U+FFFD, the replacement character, so the result is always valid UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

// One row of the choice of code pages: the name for iconv and for settings files, and the name for users.
struct CodePageName {
    const char* name;
    const char* label;
};

inline constexpr std::array kCodePages = {
    CodePageName{"windows-1252", "Western"},
    CodePageName{"windows-1250", "Central European"},
    CodePageName{"windows-1251", "Cyrillic"},
    CodePageName{"KOI8-R", "Cyrillic (KOI8-R)"},
    CodePageName{"windows-1253", "Greek"},
    CodePageName{"windows-1254", "Turkish"},
    CodePageName{"windows-1255", "Hebrew"},
    CodePageName{"windows-1256", "Arabic"},
    CodePageName{"windows-1257", "Baltic"},
    CodePageName{"windows-1258", "Vietnamese"},
    CodePageName{"CP874", "Thai"},
    CodePageName{"CP932", "Japanese"},
    CodePageName{"GB18030", "Simplified Chinese"},
    CodePageName{"BIG5", "Traditional Chinese"},
    CodePageName{"CP949", "Korean"},
    CodePageName{"UTF-8", "UTF-8"},
};

inline constexpr const char* kDefaultCodePage = "windows-1252";

// Whether iconv converts from the code page `name`. The empty name, names with a slash (iconv's own options)
// and those with other characters that no charset has in its name are refused.
bool IsCodePage(const std::string& name);

// A code page. Every byte that it does not define becomes one U+FFFD, as does an incomplete character at the
// end; UTF-8 is decoded as AppendDecodedUtf8 does. Safe on many threads at once.
class CodePage {
  public:
    // Raises error 5 unless IsCodePage(name).
    explicit CodePage(const std::string& name);

    void AppendDecoded(std::string& text, std::string_view bytes) const;

    // The length of a prefix that splits no character, for decoding a long text in pieces: at most `most`
    // bytes, or more in a page of several bytes a character where no boundary is certain before.
    std::size_t PieceOf(std::string_view bytes, std::size_t most) const;

  private:
    enum class Kind { Table, Utf8, Iconv };
    // What one byte becomes: UTF-8, `length` bytes.
    struct Character {
        std::array<char, 7> bytes;
        std::uint8_t length;
    };

    void AppendFromTable(std::string& text, std::string_view bytes) const;

    std::string name_;
    Kind kind_ = Kind::Iconv;
    bool asciiAsIs_ = false; // text in ASCII needs no conversion
    std::array<Character, 256> table_{};
};

// One U+FFFD for each maximal subpart of an ill-formed sequence (Unicode Standard, section 3.9).
void AppendDecodedUtf8(std::string& text, std::string_view bytes);

// The same of a UTF-8 text, with at most `most` bytes; `most` is at least 4.
std::size_t Utf8PieceOf(std::string_view bytes, std::size_t most);

enum class ByteOrder { LittleEndian, BigEndian };

// One U+FFFD for each unpaired surrogate; an odd last byte is ignored.
void AppendDecodedUtf16(std::string& text, std::string_view bytes, ByteOrder order);

} // namespace tunedex
