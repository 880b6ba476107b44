#include "Escaper.h"

#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>

namespace tunedex {

namespace {

constexpr std::size_t kCodePageSize = 256;
constexpr unsigned char kNotAscii = 0x80;

std::size_t FirstMarked(std::uint64_t word) {
    return static_cast<std::size_t>(std::endian::native == std::endian::little ? std::countr_zero(word)
                                                                               : std::countl_zero(word)) /
           8;
}

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

// What all slots but the last make of one character; nothing when that grows too long. The length is known
// before the memory is taken: two lines of a million characters each multiply.
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
    std::size_t marks = 0;
    marks_.fill(StepBytes{} + kNotAscii);
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
        if (code >= ' ' && code < kNotAscii && changes_.at(code)) {
            if (marks < marks_.size()) {
                marks_.at(marks) = StepBytes{} + static_cast<unsigned char>(code);
            }
            ++marks;
        }
    }
    manyMarks_ = marks > marks_.size();
}

std::string_view Escaper::Expansion(unsigned char byte) const {
    if (tooLong_[byte]) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return expansions_[byte];
}

template <class Put> void Escaper::Escape(std::string_view text, Put put) const {
    std::size_t done = 0; // what is before this has been put
    for (std::size_t i = 0; i < text.size();) {
        // Nearly every character of nearly every text is ASCII that stays as it is.
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

// How many of the bytes stand before the first that may change.
std::size_t Escaper::PlainLength(const StepBytes& bytes) const {
    using StepWords [[gnu::vector_size(sizeof(StepBytes))]] = std::uint64_t;
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    StepBytes found = bytes | reinterpret_cast<StepBytes>(bytes < static_cast<unsigned char>(' '));
    for (const StepBytes& mark : marks_) {
        found |= reinterpret_cast<StepBytes>(bytes == mark);
    }
    const StepWords words = reinterpret_cast<StepWords>(found) & kHighBits;
    if (words[0] != 0) {
        return FirstMarked(words[0]);
    }
    return words[1] != 0 ? sizeof(std::uint64_t) + FirstMarked(words[1]) : sizeof bytes;
}

void Escaper::PutEscaped(PageBuffer& page, std::string_view text) const {
    if (manyMarks_) {
        Escape(text, [&page](std::string_view piece) { page.Put(piece); });
        return;
    }
    while (!text.empty()) {
        StepBytes bytes;
        std::memcpy(&bytes, text.data(), sizeof bytes);
        page.MakeRoom(sizeof bytes);
        std::memcpy(page.End(), &bytes, sizeof bytes);
        const std::size_t plain = std::min(PlainLength(bytes), text.size());
        page.Advance(plain);
        text.remove_prefix(plain);
        if (plain < sizeof bytes && !text.empty()) {
            const TextStep step = StepAt(text, 0);
            const auto byte = step.stray ? std::nullopt : ToWindows1252(step.character);
            page.Put(byte && changes_[*byte] ? Expansion(*byte) : text.substr(0, step.length));
            text.remove_prefix(step.length);
        }
    }
}

std::string Escaper::EscapeEntities(std::string_view text) const {
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    AppendEscaped(result, text);
    return result;
}

} // namespace tunedex
