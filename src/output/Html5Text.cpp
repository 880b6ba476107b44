#include "Html5Text.h"

#include "MarkupText.h"
#include "Text.h"

#include <array>
#include <cstddef>

namespace tunedex {

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD"; // U+FFFD

constexpr bool IsAsciiWhiteSpace(char32_t character) {
    return character == '\t' || character == '\n' || character == '\f' || character == '\r' ||
           character == ' ';
}

// HTML standard, section 13.1.4 (text): what a document may not hold.
constexpr bool IsForbidden(char32_t character) {
    const bool control = character < 0x20 || (character >= 0x7F && character <= 0x9F);
    const bool noncharacter =
        (character & 0xFFFEU) == 0xFFFEU || (character >= 0xFDD0 && character <= 0xFDEF);
    return (control && !IsAsciiWhiteSpace(character)) || noncharacter;
}

constexpr std::string_view JsonReplacement(char c) {
    switch (c) {
    case '"':
        return R"(\")";
    case '\\':
        return R"(\\)";
    case '\t':
        return R"(\t)";
    case '\n':
        return R"(\n)";
    case '\f':
        return R"(\f)";
    case '\r':
        return R"(\r)";
    default:
        return {};
    }
}

// What replaces an ASCII character; empty: it stays.
constexpr std::string_view Replacement(char c, TextPlace place) {
    if (IsForbidden(static_cast<unsigned char>(c))) {
        return kReplacementCharacter;
    }
    if (place == TextPlace::Json) {
        return JsonReplacement(c);
    }
    return c == '"' && place == TextPlace::Element ? std::string_view() : ReferenceOf(c);
}

using PlainBytes = std::array<bool, 256>;

// The bytes that are characters and stay.
constexpr PlainBytes PlainBytesOf(TextPlace place) {
    PlainBytes plain{};
    for (std::size_t byte = 0; byte < 0x80; ++byte) {
        plain.at(byte) = Replacement(static_cast<char>(byte), place).empty();
    }
    return plain;
}

constexpr std::array<PlainBytes, 3> kPlain = {
    PlainBytesOf(TextPlace::Element), PlainBytesOf(TextPlace::Attribute), PlainBytesOf(TextPlace::Json)};

std::string_view ReplacementOf(const TextStep& step, TextPlace place) {
    if (step.stray) {
        return kReplacementCharacter;
    }
    if (step.character < 0x80) {
        return Replacement(static_cast<char>(step.character), place);
    }
    return IsForbidden(step.character) ? kReplacementCharacter : "";
}

template <class Put> void Escape(std::string_view text, TextPlace place, Put put) {
    const PlainBytes& plain = kPlain[static_cast<std::size_t>(place)];
    std::size_t done = 0; // bytes put so far
    for (std::size_t i = 0; i < text.size();) {
        if (plain[static_cast<unsigned char>(text[i])]) {
            ++i;
            continue;
        }
        const TextStep step = StepAt(text, i);
        if (const std::string_view replacement = ReplacementOf(step, place); !replacement.empty()) {
            put(text.substr(done, i - done));
            put(replacement);
            done = i + step.length;
        }
        i += step.length;
    }
    put(text.substr(done));
}

bool BeginsTagOf(std::string_view markup, std::string_view upperCaseName) {
    return UpperCase(markup.substr(0, 1 + upperCaseName.size())).substr(1) == upperCaseName;
}

} // namespace

void PutHtml5Text(PageBuffer& page, std::string_view text, TextPlace place) {
    Escape(text, place, [&page](std::string_view piece) { page.Put(piece); });
}

std::string Html5Text(std::string_view text, TextPlace place) {
    std::string result;
    Escape(text, place, [&result](std::string_view piece) { result += piece; });
    return result;
}

std::string Html5Markup(std::string_view markup) {
    std::string result;
    for (std::size_t i = 0; i < markup.size();) {
        const TextStep step = StepAt(markup, i);
        const std::string_view rest = markup.substr(i);
        if (step.stray || IsForbidden(step.character)) {
            result += kReplacementCharacter;
        } else if (rest[0] == '<' && (BeginsTagOf(rest, "META") || BeginsTagOf(rest, "LINK"))) {
            result += "&lt;";
        } else {
            result += rest.substr(0, step.length);
        }
        i += step.length;
    }
    return result;
}

} // namespace tunedex
