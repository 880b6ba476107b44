#include "Placeholders.h"

#include "ListingFixture.h"

namespace tunedex {
namespace {

using PlaceholdersTest = ListingTest;

struct PlaceholderRow {
    const char* text;
    const char* inTitle;
    const char* inPage;
};

TEST_F(PlaceholdersTest, AreReplacedInSequence) {
    const PlaceholderRow rows[] = {
        {"MP3 List (%D)", "MP3 List (2026-11-21)", "MP3 List (2026-11-21)"},
        {"MP3 Listing (%C files)", "MP3 Listing (250 files)", "MP3 Listing (250 files)"},
        {"%D %T %C %N %S %P", "2026-11-21 14:05 250 0 953.67 MB 4:05",
         "2026-11-21 14:05 250 0 953.67 MB 4:05"},
        {"%d %t %c %n %s %p %l", "%d %t %c %n %s %p %l", "%d %t %c %n %s %p %l"},
        {"100%% done", "100% done", "100% done"},
        {"a%Lb", "a - b", "a<br>b"},
        {"%%L", " - ", "<br>"},
        {"%%D", "%2026-11-21", "%2026-11-21"}, // %D is replaced before %%
        {"%%%", "%%", "%%"},
        {"%C%C", "250250", "250250"},
        {"", "", ""},
        {"%", "%", "%"},
    };
    UseMany(250);
    for (const PlaceholderRow& row : rows) {
        settings.WindowTitle = settings.PageTitle = settings.PageFooter = row.text;
        Listing listing = MakeListing();
        ExpandTitlePlaceholders(listing, "<br>");
        EXPECT_EQ(settings.WindowTitle, row.inTitle) << row.text;
        EXPECT_EQ(settings.PageTitle, row.inPage) << row.text;
        EXPECT_EQ(settings.PageFooter, row.inPage) << row.text;
    }
}

TEST_F(PlaceholdersTest, ShowTheSizeInTheUnitOfTheSettings) {
    Use(SevenTracks());
    totals.TotalBytes = 1234567;
    for (const auto& [type, text] : std::vector<std::pair<std::int16_t, std::string>>{
             {0, "1,234,567 b. 1"}, {1, "1,205.63 kB 1"}, {2, "1.18 MB 1"}, {3, " 1"}}) {
        settings.SizeType = type;
        settings.PageTitle = "%S %N";
        Listing listing = MakeListing();
        ExpandTitlePlaceholders(listing, "<br>");
        EXPECT_EQ(settings.PageTitle, text);
    }
    totals.TotalBytes = 9007199254740992.0; // 8 PB, beyond any 32-bit number
    settings.SizeType = 0;
    settings.PageTitle = "%S";
    Listing listing = MakeListing();
    ExpandTitlePlaceholders(listing, "<br>");
    EXPECT_EQ(settings.PageTitle, "9,007,199,254,740,992 b.");
}

TEST_F(PlaceholdersTest, ReadTheClockForEachText) {
    class TickingClock final : public Clock {
      public:
        std::tm LocalTime() const override {
            std::tm time{};
            time.tm_year = 126;
            time.tm_mday = 1;
            time.tm_min = ++minute_;
            return time;
        }
        void Sleep(std::chrono::milliseconds /*duration*/) override {}

      private:
        mutable int minute_ = 0;
    };
    const TickingClock ticking;
    settings.WindowTitle = settings.PageTitle = settings.PageFooter = "%T";
    Listing listing{settings, tracks, totals, entities, locale, ticking, monitor};
    ExpandTitlePlaceholders(listing, "<br>");
    EXPECT_EQ(settings.WindowTitle, "00:01");
    EXPECT_EQ(settings.PageTitle, "00:02");
    EXPECT_EQ(settings.PageFooter, "00:03");
}

TEST(PlayTimeText, ShowsHoursFromAnHourOn) {
    for (const auto& [seconds, text] :
         std::vector<std::pair<double, std::string>>{{0, "0:00"},
                                                     {9, "0:09"},
                                                     {59, "0:59"},
                                                     {60, "1:00"},
                                                     {245, "4:05"},
                                                     {3599, "59:59"},
                                                     {3600, "1:00:00"},
                                                     {3725, "1:02:05"},
                                                     {36000, "10:00:00"},
                                                     {360000, "100:00:00"},
                                                     {8640000001.0, "2400000:00:01"}}) {
        EXPECT_EQ(PlayTimeText(seconds), text);
    }
}

} // namespace
} // namespace tunedex
