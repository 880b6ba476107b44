#include "TrackTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

TrackInfo Numbered(int number) {
    TrackInfo track;
    track.FullPath = "/music/" + std::to_string(number) + ".mp3";
    track.Title = "title " + std::to_string(number);
    track.Mode = "mode " + std::to_string(number);
    track.TagType = kId3v2Tag;
    return track;
}

TEST(TrackTable, KeepsTheTextsThatOnlySomeTracksHave) {
    TrackTable table(4);
    std::vector<TrackInfo> tracks;
    for (int number = 1; number <= 4; ++number) {
        TrackInfo track = Numbered(number);
        if (number % 2 == 0) {
            track.Track = std::to_string(number) + "/4";
            track.Disc = "1";
            track.AlbumArtist = "Various";
            track.Composer = number == 2 ? "Composer" : "";
            track.Comment = LettersOf(3000);
        }
        table.Append(track);
        tracks.push_back(track);
    }
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        EXPECT_TRUE(table.Copy(i + 1) == tracks[i]) << i;
    }
    EXPECT_EQ(table.ExtrasAt(2).Comment.Identity(), table.ExtrasAt(4).Comment.Identity());
    EXPECT_TRUE(table.ExtrasAt(3).Track.Empty());
}

TEST(TrackTable, KeepsALongCommentThatAReaderShared) {
    TrackTable table(1);
    TrackInfo track = Numbered(1);
    const LongTextHandle text = table.LongTexts().Share(LettersOf(5000));
    track.Set(&TrackInfo::Comment, text);
    table.Append(track);
    EXPECT_EQ(table.ExtrasAt(1).Comment.Identity(), text->Shared().Identity());
}

TEST(TrackTable, ReordersWholeTracks) {
    TrackTable table(3);
    std::vector<TrackInfo> tracks = {Numbered(1), Numbered(2), Numbered(3)};
    tracks[1].Disc = "2";
    for (const TrackInfo& track : tracks) {
        table.Append(track);
    }
    table.Reorder({2, 0, 1});
    EXPECT_TRUE(table.Copy(1) == tracks[2]);
    EXPECT_TRUE(table.Copy(2) == tracks[0]);
    EXPECT_TRUE(table.Copy(3) == tracks[1]);
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
