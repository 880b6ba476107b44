#include "Escaper.h"

#include "RunTimeError.h"
#include "Text.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace tunedex {

namespace {

constexpr std::size_t kCodePageSize = 256;

std::string CharacterOf(std::size_t code) {
    std::string text;
    AppendUtf8(text, FromWindows1252(static_cast<unsigned char>(code)));
    return text;
}

std::size_t CountOf(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t hit = text.find(part); hit != std::string_view::npos;
         hit = text.find(part, hit + part.size())) {
        ++count;
    }
    return count;
}

// Applies all slots but the last to one character; nothing when the result is too long. The length is
// computed before memory is allocated: two lines of a million characters each multiply.
std::optional<std::string> Expand(std::string expansion, const std::vector<EntityTable::Slot>& slots,
                                  const std::vector<std::string>& characters) {
    for (std::size_t i = 0; i + 1 < slots.size(); ++i) {
        const std::string& replaced = characters[static_cast<std::size_t>(slots[i].code)];
        const std::string& text = slots[i].text;
        const std::size_t count = CountOf(expansion, replaced);
        if (count == 0) {
            continue;
        }
        const std::size_t kept = expansion.size() - count * replaced.size();
        if (kept > Escaper::kLongestExpansion || text.size() > (Escaper::kLongestExpansion - kept) / count) {
            return std::nullopt;
        }
        expansion = ReplaceAll(expansion, replaced, text);
    }
    return expansion;
}

} // namespace

Escaper::Escaper(const EntityTable& table) {
    expansions_.resize(kCodePageSize);
    std::vector<std::string> characters(kCodePageSize);
    for (std::size_t code = 0; code < kCodePageSize; ++code) {
        characters[code] = CharacterOf(code);
    }
    for (std::size_t code = 0; code < kCodePageSize; ++code) {
        std::optional<std::string> expansion = Expand(characters[code], table.Slots(), characters);
        tooLong_.at(code) = !expansion;
        changes_.at(code) = expansion != characters[code];
        staysAscii_.at(code) = code < 0x80 && !changes_.at(code);
        expansions_[code] = std::move(expansion).value_or("");
    }
}

std::string_view Escaper::Expansion(unsigned char byte) const {
    if (tooLong_[byte]) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return expansions_[byte];
}

template <class Put> void Escaper::Escape(std::string_view text, Put put) const {
    std::size_t done = 0; // bytes put so far
    for (std::size_t i = 0; i < text.size();) {
        // Fast path: most characters are ASCII and do not change.
        while (i < text.size() && staysAscii_[static_cast<unsigned char>(text[i])]) {
            ++i;
        }
        if (i == text.size()) {
            break;
        }
        const TextStep step = StepAt(text, i);
        const auto byte = step.stray ? std::nullopt : ToWindows1252(step.character);
        if (byte && changes_[*byte]) {
            put(text.substr(done, i - done));
            put(Expansion(*byte));
            done = i + step.length;
        }
        i += step.length;
    }
    put(text.substr(done));
}

void Escaper::AppendEscaped(std::string& result, std::string_view text) const {
    Escape(text, [&result](std::string_view piece) { result += piece; });
}

void Escaper::PutEscaped(PageBuffer& page, std::string_view text) const {
    Escape(text, [&page](std::string_view piece) { page.Put(piece); });
}

std::string Escaper::EscapeEntities(std::string_view text) const {
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    AppendEscaped(result, text);
    return result;
}

} // namespace tunedex
