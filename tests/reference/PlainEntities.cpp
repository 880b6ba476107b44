#include "PlainEntities.h"

#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"

namespace tunedex::plain {

namespace {

// A character, or a stray byte, which no slot may change.
struct Piece {
    std::string bytes;
    bool stray;
};

std::vector<Piece> PiecesOf(std::string_view text) {
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        pieces.push_back({std::string(text.substr(i, step.length)), step.stray});
        i += step.length;
    }
    return pieces;
}

} // namespace

std::vector<EntitySlot> LoadEntities(const std::vector<std::string>& lines) {
    std::vector<EntitySlot> slots(1);
    std::size_t entries = 0;
    for (const std::string& line : lines) {
        slots.emplace_back();
        if (line.empty() || line[0] == '#') {
            continue;
        }
        const std::vector<std::string> parts = Split(line, "\t");
        if (parts.size() < 2 || !IsNumeric(parts[0])) {
            continue;
        }
        const double code = RoundHalfToEven(LeadingNumber(parts[0]));
        if (code >= 0 && code <= 255) {
            slots[entries] = {static_cast<std::int16_t>(code), parts[1]};
            ++entries;
        }
    }
    return slots;
}

Escaped Escape(const std::vector<EntitySlot>& slots, std::string_view text, std::size_t longest) {
    std::vector<Piece> pieces = PiecesOf(text);
    for (std::size_t i = 0; i + 1 < slots.size(); ++i) {
        std::string character;
        AppendUtf8(character, FromWindows1252(static_cast<unsigned char>(slots[i].code)));
        const std::vector<Piece> replacement = PiecesOf(slots[i].text);
        std::vector<Piece> next;
        std::size_t length = 0;
        for (const Piece& piece : pieces) {
            if (!piece.stray && piece.bytes == character) {
                next.insert(next.end(), replacement.begin(), replacement.end());
                length += slots[i].text.size();
            } else {
                next.push_back(piece);
                length += piece.bytes.size();
            }
            if (length > longest) {
                return {"", true};
            }
        }
        pieces = std::move(next);
    }
    Escaped escaped;
    for (const Piece& piece : pieces) {
        escaped.text += piece.bytes;
    }
    return escaped;
}

} // namespace tunedex::plain
