#include "EntityTable.h"

#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

using Lines = std::vector<std::string>;
using Entries = std::vector<std::pair<int, std::string>>;

EntityTable TableOf(const Lines& lines) {
    EntityTable table;
    std::ostringstream faults;
    table.Load(lines, "test", faults);
    EXPECT_EQ(faults.str(), "");
    return table;
}

// The slots that hold an entry.
Entries EntriesOf(const EntityTable& table) {
    Entries entries;
    for (const EntityTable::Slot& slot : table.Slots()) {
        if (slot.code != 0 || !slot.text.empty()) {
            entries.emplace_back(slot.code, slot.text);
        }
    }
    return entries;
}

TEST(EntityTable, HasOneEmptySlotWithoutAFile) {
    const test::TestFolder folder;
    std::ostringstream faults;
    EntityTable table;
    EXPECT_EQ(table.Slots().size(), 1U);
    table.Load(folder / "html_entities.lst", faults);
    EXPECT_EQ(table.Slots().size(), 1U);
    EXPECT_EQ(EntriesOf(table), Entries());
    EXPECT_EQ(faults.str(), "");
}

TEST(EntityTable, HasOneSlotMoreThanItsFileHasLines) {
    const EntityTable table = TableOf({"# one", "38\t&amp;", "", "60\t&lt;"});
    ASSERT_EQ(table.Slots().size(), 5U);
    EXPECT_EQ(table.Slots()[0].code, 38);
    EXPECT_EQ(table.Slots()[0].text, "&amp;");
    EXPECT_EQ(table.Slots()[1].code, 60);
    for (std::size_t slot = 2; slot < 5; ++slot) {
        EXPECT_EQ(table.Slots()[slot].code, 0);
        EXPECT_EQ(table.Slots()[slot].text, "");
    }
    EXPECT_EQ(TableOf({}).Slots().size(), 1U);
}

TEST(EntityTable, ReadsTheTextUpToASecondTabAndAnyCodeInRange) {
    EXPECT_EQ(EntriesOf(TableOf({"65\tx\tignored\tmore", " 66 \ty", "67\t", "255\t[255]", "68.4\t[D]"})),
              (Entries{{65, "x"}, {66, "y"}, {67, ""}, {255, "[255]"}, {68, "[D]"}}));
}

TEST(EntityTable, IsRebuiltByEveryLoad) {
    const test::TestFolder folder;
    std::ostringstream faults;
    EntityTable table;
    const std::string path = folder.Write("html_entities.lst", "38\t&amp;\r\n60\t&lt;\r\n");
    table.Load(path, faults);
    EXPECT_EQ(EntriesOf(table), (Entries{{38, "&amp;"}, {60, "&lt;"}}));
    folder.Write("html_entities.lst", "38\tand\n");
    table.Load(path, faults);
    EXPECT_EQ(EntriesOf(table), (Entries{{38, "and"}}));
    table.Load(folder / "none", faults);
    EXPECT_EQ(EntriesOf(table), Entries());
}

TEST(EntityTable, SkipsAnInvalidLineAndReportsFileLineAndReason) {
    struct Row {
        const char* line;
        const char* reason;
    };
    const std::vector<Row> rows = {
        {"38 &amp;", "no TAB in it"},
        {" ", "no TAB in it"},
        {"x\t&amp;", "Type mismatch"},
        {"\t&amp;", "Type mismatch"},
        {"38x\t&amp;", "Type mismatch"},
        {"&\t&amp;", "Type mismatch"},
        {"256\tx", "Invalid procedure call or argument"},
        {"-1\tx", "Invalid procedure call or argument"},
        {"40000\tx", "Overflow"},
    };
    for (const Row& row : rows) {
        EntityTable table;
        std::ostringstream faults;
        table.Load(Lines{"# head", row.line, "60\t&lt;"}, "table.lst", faults);
        EXPECT_EQ(faults.str(), std::string("table.lst:2: line skipped: ") + row.reason + "\n") << row.line;
        EXPECT_EQ(EntriesOf(table), (Entries{{60, "&lt;"}})) << row.line;
        EXPECT_EQ(table.Slots().size(), 4U) << "a skipped line counts as a line";
    }
}

TEST(EntityTable, RaisesTheErrorOfAnUnreadableFile) {
    const test::TestFolder folder;
    test::AsOrdinaryUser(folder, [&] {
        const std::string path = folder.Write("html_entities.lst", "38\t&amp;");
        ASSERT_EQ(chmod(path.c_str(), 0), 0);
        EntityTable table;
        std::ostringstream faults;
        EXPECT_EQ(test::RaisedBy([&] { table.Load(path, faults); }), 75);
    });
}

} // namespace
} // namespace tunedex
