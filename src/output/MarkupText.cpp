#include "MarkupText.h"

#include "Text.h"

#include <array>
#include <charconv>

namespace tunedex {

namespace {

std::string_view ReferenceOf(char c) {
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    default:
        return {};
    }
}

std::string WithReferences(std::string_view text, std::string_view replaced) {
    std::string result;
    for (std::size_t hit = text.find_first_of(replaced); hit != std::string_view::npos;
         hit = text.find_first_of(replaced)) {
        result += text.substr(0, hit);
        result += ReferenceOf(text[hit]);
        text.remove_prefix(hit + 1);
    }
    return result.append(text);
}

bool IsNameCharacter(char32_t c) {
    const bool alphanumeric = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return alphanumeric || c == '-' || c == '_' || (c >= 0xA0 && c <= 0xFF);
}

// Whether neither CSS nor markup treats the character specially within a string that it does not enclose.
bool IsStringCharacter(char32_t c) {
    const bool latin1 = (c >= 0x20 && c < 0x7F) || (c >= 0xA0 && c <= 0xFF);
    return latin1 && c != '\\' && c != '<' && c != '>';
}

void AppendCssEscape(std::string& css, char32_t character) {
    std::array<char, 8> digits{};
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<unsigned>(character), 16).ptr;
    css += '\\';
    css.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
    css += ' '; // ends the escape; not part of the text
}

// Appends each character, escaped unless `isPlain`.
template <class Test> void AppendCss(std::string& css, std::string_view text, Test isPlain) {
    constexpr char32_t kReplacementCharacter = 0xFFFD;
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        if (!step.stray && isPlain(step.character)) {
            css += text.substr(i, step.length);
        } else {
            AppendCssEscape(css, step.stray || step.character == 0 ? kReplacementCharacter : step.character);
        }
        i += step.length;
    }
}

} // namespace

std::string ElementText(std::string_view text) {
    return WithReferences(text, "&<>");
}

std::string AttributeText(std::string_view text) {
    return WithReferences(text, "&<>\"");
}

std::string CssText(std::string_view text) {
    std::string css;
    while (!text.empty()) {
        const std::size_t open = text.find_first_of("\"'");
        const std::size_t close = open == std::string_view::npos ? open : text.find(text[open], open + 1);
        // A quotation mark without its partner is escaped, too.
        const std::size_t outside = close == std::string_view::npos ? text.size() : open;
        AppendCss(css, text.substr(0, outside),
                  [](char32_t c) { return IsNameCharacter(c) || c == ' ' || c == ','; });
        if (close == std::string_view::npos) {
            break;
        }
        css += text[open];
        AppendCss(css, text.substr(open + 1, close - open - 1), IsStringCharacter);
        css += text[close];
        text.remove_prefix(close + 1);
    }
    return css;
}

} // namespace tunedex
