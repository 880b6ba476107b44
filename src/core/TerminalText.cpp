#include "TerminalText.h"

#include "Text.h"

namespace tunedex {

namespace {

bool SteersTerminal(char32_t c) {
    const bool control = c < 0x20 || (c >= 0x7F && c <= 0x9F);
    const bool lineBreak = c == 0x2028 || c == 0x2029;
    const bool direction = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                           (c >= 0x2066 && c <= 0x2069);
    return control || lineBreak || direction;
}

} // namespace

std::string TerminalText(std::string_view text) {
    std::string clean;
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i); // for a stray byte, `character` is the byte's value
        if (SteersTerminal(step.character)) {
            clean += '?';
        } else {
            clean += text.substr(i, step.length);
        }
        i += step.length;
    }
    return clean;
}

std::string_view CutToBytes(std::string_view text, std::size_t bytes) {
    std::size_t end = 0;
    while (end < text.size() && end + StepAt(text, end).length <= bytes) {
        end += StepAt(text, end).length;
    }
    return text.substr(0, end);
}

} // namespace tunedex
