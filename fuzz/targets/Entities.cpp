// Input: a text up to the first NUL, then an entity file.
#include "EntityTable.h"
#include "Escaper.h"

#include "PlainEntities.h"
#include "RunTimeError.h"
#include "Targets.h"
#include "Text.h"
#include "TextLines.h"

#include <sstream>

namespace tunedex::fuzz {

namespace {

// A table can expand a text exponentially; longer results are not checked.
constexpr std::size_t kLongest = 4096;

bool StaysShort(const std::vector<plain::EntitySlot>& slots) {
    for (unsigned code = 0; code < 256; ++code) {
        std::string character;
        AppendUtf8(character, FromWindows1252(static_cast<unsigned char>(code)));
        if (plain::Escape(slots, character, kLongest).tooLong) {
            return false;
        }
    }
    return true;
}

} // namespace

void RunEntities(Bytes bytes) {
    Input input(bytes);
    const std::string text = input.Until(0);
    const std::vector<std::string> lines = SplitTextLines(input.Rest());
    const std::vector<plain::EntitySlot> slots = plain::LoadEntities(lines);
    if (!StaysShort(slots)) {
        return;
    }
    EntityTable table;
    std::ostringstream faults;
    table.Load(lines, "entities", faults);
    Require(table.Slots().size() == lines.size() + 1, "the table has one slot more than the file has lines");
    for (std::size_t i = 0; i < slots.size(); ++i) {
        Require(table.Slots()[i].code == slots[i].code, "a slot's character");
        RequireEqual(table.Slots()[i].text, slots[i].text, "a slot's text");
    }
    const Escaper escaper(table);
    const plain::Escaped expected = plain::Escape(slots, text, std::string().max_size());
    RequireEqual(escaper.EscapeEntities(text), expected.text, "an escaped text");
    std::string appended = "before";
    escaper.AppendEscaped(appended, text);
    RequireEqual(appended, "before" + expected.text, "an escaped text appended to another");
    PageBuffer page;
    page.Put("before");
    escaper.PutEscaped(page, text);
    RequireEqual(std::string(page.View()), "before" + expected.text, "an escaped text put into a page");
}

} // namespace tunedex::fuzz
