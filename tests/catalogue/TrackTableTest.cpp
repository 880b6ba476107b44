#include "TrackTable.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

std::string LettersOf(std::size_t length, char last = 'z') {
    std::string text(length, 't');
    text.back() = last;
    return text;
}

TEST(TrackTable, StoresTextsOfEveryLengthUnchanged) {
    TrackTable table(20);
    std::vector<TrackInfo> tracks;
    for (const std::size_t length : {std::size_t{1}, kLongTextBytes - 1, kLongTextBytes, kLongTextBytes + 1,
                                     std::size_t{65536}, std::size_t{2097153}}) {
        TrackInfo track;
        track.FullPath = "/music/" + std::to_string(length) + ".mp3";
        track.Title = LettersOf(length);
        track.Album = LettersOf(length, 'y');
        track.TagType = kId3v2Tag;
        table.Append(track);
        tracks.push_back(track);
    }
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        EXPECT_TRUE(table.Copy(i + 1) == tracks[i]) << i;
    }
}

TEST(TrackTable, StoresALongTextOnceWhicheverFieldsShowIt) {
    TrackTable table(2);
    TrackInfo track;
    track.Artist = track.Title = track.Album = track.Year = track.Genre = LettersOf(4096);
    track.TagType = kId3v2Tag;
    table.Append(track);
    track.Title = LettersOf(4096, 'y');
    table.Append(track);
    const TrackRow& first = table.At(1);
    for (const SharedText& text : {first.Artist, first.Album, first.Year, first.Genre, table.At(2).Artist}) {
        EXPECT_EQ(text.Identity(), first.Title.Identity());
    }
    EXPECT_NE(table.At(2).Title.Identity(), first.Title.Identity());
    EXPECT_EQ(table.At(2).Title.View(), LettersOf(4096, 'y'));
}

TEST(TrackTable, ReusesTheLongTextsThatReadersShared) {
    TrackTable table(1);
    const TrackInfo fresh;
    TrackInfo track;
    const LongTextHandle text = table.LongTexts().Share(LettersOf(5000));
    track.Set(&TrackInfo::Genre, text);
    track.Set(&TrackInfo::Title, table.LongTexts().Share(LettersOf(5000)));
    table.Append(track);
    EXPECT_EQ(table.At(1).Genre.Identity(), text->Shared().Identity());
    EXPECT_EQ(table.At(1).Title.Identity(), text->Shared().Identity());
    EXPECT_TRUE(table.At(1).Artist.Empty());
    track.Clear();
    EXPECT_EQ(track, fresh);
}

TEST(TrackTable, KeepsTheLargestSizeAndTheLongestPlayingTime) {
    TrackTable table(1);
    TrackInfo track;
    track.FileSize = INT32_MAX;
    track.Seconds = INT32_MAX / 125; // at 1 kbit/s
    track.TagType = kId3v2Tag;
    table.Append(track);
    EXPECT_EQ(table.Copy(1).FileSize, track.FileSize);
    EXPECT_EQ(table.Copy(1).Seconds, track.Seconds);
    EXPECT_EQ(table.Copy(1).TagType, kId3v2Tag);
}

TEST(TrackTable, KeepsLongTextsWhenMoved) {
    TrackTable table(1);
    TrackInfo track;
    track.Title = LettersOf(5000);
    table.Append(track);
    const TrackTable moved = std::move(table);
    EXPECT_EQ(moved.At(1).Title.View(), LettersOf(5000));
}

} // namespace
} // namespace tunedex
