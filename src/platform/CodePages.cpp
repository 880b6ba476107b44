#include "CodePages.h"

#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>
#include <iterator>
#include <optional>

namespace tunedex {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

unsigned char UnsignedAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

// A descriptor of iconv, which has a state: each conversion has one of its own.
class Conversion {
  public:
    explicit Conversion(const std::string& from) : descriptor_(iconv_open("UTF-8", from.c_str())) {}
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;
    ~Conversion() {
        if (IsOpen()) {
            iconv_close(descriptor_);
        }
    }

    // iconv_open() returns -1 as a pointer.
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(descriptor_) != -1; }

    // Appends what can be converted and removes it from `bytes`. Returns 0 at the end of `bytes`, otherwise
    // EILSEQ or EINVAL, where an ill-formed or incomplete character starts.
    int Convert(std::string& text, std::string_view& bytes) {
        char* from = const_cast<char*>(bytes.data()); // iconv takes no pointer to const; it does not write
        std::size_t left = bytes.size();
        int failure = 0;
        do {
            failure = Step(text, &from, &left);
        } while (failure == E2BIG);
        bytes.remove_prefix(bytes.size() - left);
        return failure;
    }

    // Appends a character that waits for one to combine with (windows-1258), and returns to the initial
    // state.
    void Flush(std::string& text) { Step(text, nullptr, nullptr); }

  private:
    int Step(std::string& text, char** from, std::size_t* left) {
        std::array<char, 1024> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): iconv fills it
        char* to = buffer.data();
        std::size_t room = buffer.size();
        const bool failed = iconv(descriptor_, from, left, &to, &room) == static_cast<std::size_t>(-1);
        const int failure = failed ? errno : 0;
        text.append(buffer.data(), buffer.size() - room);
        return failure;
    }

    iconv_t descriptor_;
};

void AppendConverted(std::string& text, std::string_view bytes, const std::string& from) {
    Conversion conversion(from);
    while (!bytes.empty()) {
        const int failure = conversion.Convert(text, bytes);
        conversion.Flush(text);
        if (failure == 0) {
            return;
        }
        text += kReplacement;
        // glibc can refuse a last byte that it has taken already.
        if (failure == EINVAL || bytes.empty()) {
            return;
        }
        bytes.remove_prefix(1);
    }
}

// Letters, digits and the punctuation in the names of charsets.
bool IsNameCharacter(char c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return letter || (c >= '0' && c <= '9') || std::string_view("-_.:+()").find(c) != std::string_view::npos;
}

bool IsNameOfUtf8(const std::string& name) {
    const std::string upper = UpperCase(name);
    return upper == "UTF-8" || upper == "UTF8";
}

// Whether iconv leaves ASCII as it is. The end of the sample is a shift sequence of the 7-bit encodings of
// Chinese and Japanese, the order of its bytes one of UTF-7.
bool LeavesAsciiAsIs(const std::string& name) {
    std::string sample;
    for (int byte = 1; byte < 0x80; ++byte) {
        sample += static_cast<char>(byte);
    }
    sample += "\x1B$B!!~{!!~}";
    std::string converted;
    AppendConverted(converted, sample, name);
    return converted == sample;
}

// What one byte alone converts to; nothing if it is a part of a character or the conversion has a state.
std::optional<std::string> ConvertedAlone(Conversion& conversion, char byte) {
    std::string text;
    std::string_view bytes(&byte, 1);
    const int failure = conversion.Convert(text, bytes);
    const bool waits = failure == 0 && text.empty();
    conversion.Flush(text);
    if (failure == EINVAL || waits) {
        return std::nullopt;
    }
    return failure == 0 ? text : std::string(kReplacement);
}

// A first byte of a UTF-8 sequence: how many bytes follow and the range of the first of them (Unicode
// Standard, table 3-7). The others are 80 to BF.
struct Utf8Lead {
    std::size_t more = 0; // 0: no first byte
    unsigned char least = 0x80;
    unsigned char most = 0xBF;
};

Utf8Lead LeadOf(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        return {2, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        return {3, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
    }
    return {};
}

// The number of bytes at `position` that begin a well-formed sequence, and whether they complete it.
struct Utf8Step {
    std::size_t length;
    bool whole;
};

Utf8Step Utf8StepAt(std::string_view bytes, std::size_t position) {
    const unsigned char first = UnsignedAt(bytes, position);
    if (first < 0x80) {
        return {1, true};
    }
    const Utf8Lead lead = LeadOf(first);
    std::size_t length = 1;
    while (length <= lead.more && position + length < bytes.size()) {
        const unsigned char next = UnsignedAt(bytes, position + length);
        if (next < (length == 1 ? lead.least : 0x80) || next > (length == 1 ? lead.most : 0xBF)) {
            break;
        }
        ++length;
    }
    return {length, lead.more > 0 && length == lead.more + 1};
}

char32_t UnitAt(std::string_view bytes, std::size_t position, ByteOrder order) {
    const char32_t first = UnsignedAt(bytes, position);
    const char32_t second = UnsignedAt(bytes, position + 1);
    return order == ByteOrder::LittleEndian ? second << 8U | first : first << 8U | second;
}

} // namespace

bool IsCodePage(const std::string& name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), IsNameCharacter) &&
           Conversion(name).IsOpen();
}

CodePage::CodePage(const std::string& name) : name_(name) {
    if (!IsCodePage(name)) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    if (IsNameOfUtf8(name)) {
        kind_ = Kind::Utf8;
        return;
    }
    asciiAsIs_ = LeavesAsciiAsIs(name);
    Conversion conversion(name);
    for (std::size_t byte = 0; byte < table_.size(); ++byte) {
        const auto text = ConvertedAlone(conversion, static_cast<char>(byte));
        Character& character = table_.at(byte);
        if (!text || text->size() > character.bytes.size()) {
            return; // Kind::Iconv
        }
        std::copy(text->begin(), text->end(), character.bytes.begin());
        character.length = static_cast<std::uint8_t>(text->size());
    }
    kind_ = Kind::Table;
}

void CodePage::AppendFromTable(std::string& text, std::string_view bytes) const {
    for (const char byte : bytes) {
        const Character& character = table_[static_cast<unsigned char>(byte)];
        text.append(character.bytes.data(), character.length);
    }
}

void CodePage::AppendDecoded(std::string& text, std::string_view bytes) const {
    if (kind_ == Kind::Utf8) {
        AppendDecodedUtf8(text, bytes);
    } else if (asciiAsIs_ && IsAscii(bytes)) {
        text += bytes;
    } else if (kind_ == Kind::Table) {
        AppendFromTable(text, bytes);
    } else {
        AppendConverted(text, bytes, name_);
    }
}

std::size_t CodePage::PieceOf(std::string_view bytes, std::size_t most) const {
    if (bytes.size() <= most || kind_ == Kind::Table) {
        return std::min(bytes.size(), most);
    }
    if (kind_ == Kind::Utf8) {
        return Utf8PieceOf(bytes, most);
    }
    if (!asciiAsIs_) {
        return bytes.size();
    }
    // Control characters, blanks and some punctuation are no part of a longer character in any page that
    // leaves ASCII as it is.
    const auto isAlone = [](char c) { return c >= 0 && c < 0x30; };
    const auto middle = bytes.begin() + static_cast<std::ptrdiff_t>(most);
    const auto before = std::find_if(std::make_reverse_iterator(middle), bytes.rend(), isAlone);
    if (before != bytes.rend()) {
        return static_cast<std::size_t>(bytes.rend() - before);
    }
    const auto behind = std::find_if(middle, bytes.end(), isAlone);
    return behind == bytes.end() ? bytes.size() : static_cast<std::size_t>(behind - bytes.begin()) + 1;
}

std::size_t Utf8PieceOf(std::string_view bytes, std::size_t most) {
    if (bytes.size() <= most) {
        return bytes.size();
    }
    // Only a sequence that begins in the last three bytes can go on behind them.
    constexpr std::size_t kLongestStart = 3;
    for (std::size_t before = 1; before <= kLongestStart; ++before) {
        if (Utf8StepAt(bytes, most - before).length > before) {
            return most - before;
        }
    }
    return most;
}

void AppendDecodedUtf8(std::string& text, std::string_view bytes) {
    if (IsAscii(bytes)) {
        text += bytes;
        return;
    }
    for (std::size_t i = 0; i < bytes.size();) {
        const Utf8Step step = Utf8StepAt(bytes, i);
        text += step.whole ? bytes.substr(i, step.length) : kReplacement;
        i += step.length;
    }
}

void AppendDecodedUtf16(std::string& text, std::string_view bytes, ByteOrder order) {
    const std::size_t end = bytes.size() / 2 * 2;
    for (std::size_t i = 0; i < end; i += 2) {
        const char32_t unit = UnitAt(bytes, i, order);
        if (unit < 0xD800 || unit > 0xDFFF) {
            AppendUtf8(text, unit);
            continue;
        }
        const char32_t next = unit < 0xDC00 && i + 2 < end ? UnitAt(bytes, i + 2, order) : 0;
        if (next < 0xDC00 || next > 0xDFFF) {
            text += kReplacement;
            continue;
        }
        AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00));
        i += 2;
    }
}

} // namespace tunedex
