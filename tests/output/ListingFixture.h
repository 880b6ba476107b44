// Fixture: a listing with settings, tracks and fake surroundings.
#pragma once

#include "DefaultSettings.h"
#include "Fakes.h"
#include "OutputList.h"
#include "TestFolder.h"
#include "TextFile.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace tunedex {

// Seven tracks for the special cases of cells: accents, Japanese, markup, empty fields, no tags.
inline std::vector<TrackInfo> SevenTracks() {
    return {
        {"/music/Abba/01 Waterloo.mp3", "/music/", 4000000, "Abba", "Waterloo", "Waterloo", "1974", "Pop",
         "128", "44100", "Joint Stereo", "1.0 III", "4:10", kId3v2Tag},
        {"/music/Bj\xC3\xB6rk/J\xC3\xB3ga.mp3", "/music/", 1234567, "Bj\xC3\xB6rk", "J\xC3\xB3ga",
         "Homog\xC3\xA9nic", "1997", "Trip Hop", "192", "48000", "Stereo", "1.0 III", "0:51", kId3v1Tag},
        {"/music/no album.mp3", "/music/", 128, "Nobody", "Alone", "", "", "", "64", "22050", "Mono",
         "2.0 III", "0:00", kId3v1Tag},
        {"/music/R&B/\"quoted\" <b>.mp3", "/music/", 2097152, "R&B \"All\" <Stars>", "1 < 2 & 3 > 2", "A&B",
         "2001", "R&B", "320", "32000", "Dual Channel", "1.0 II", "75:03", kId3v2Tag},
        {"/music/untagged.mp3", "/music/", 0, "/music/untagged.mp3", "No ID3 Tags!", "", "", "", "", "", "",
         "", "", kNoTag},
        {"/music/\xE6\x97\xA5\xE6\x9C\xAC/\xE3\x81\x82.mp3", "/music/", 2147483647,
         "\xE6\x97\xA5\xE6\x9C\xAC", "\xE3\x81\x82 \xE2\x82\xAC 5", "\xD0\x9C\xD0\xB8\xD1\x80", "(1999)",
         "JPop", "919", "44100", "Joint Stereo", "2.5 III", "26:08", kId3v2Tag},
        {"/music/Zz Top/La Grange.mp3", "/music/", 1048576, "Zz Top", "La Grange", "Tres Hombres", "1973",
         "Rock", "128", "44100", "Stereo", "1.0 III", "1:05", kId3v2Tag},
    };
}

// The line with the first occurrence of `part`, without its line end.
inline std::string LineWith(const std::string& page, const std::string& part) {
    const std::size_t at = page.find(part);
    if (at == std::string::npos) {
        return "no line with " + part;
    }
    const std::size_t from = page.rfind('\n', at) + 1;
    return page.substr(from, page.find("\r\n", at) - from);
}

inline std::size_t CountOf(const std::string& page, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = page.find(part); at != std::string::npos; at = page.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

class ListingTest : public testing::Test {
  protected:
    ListingTest() {
        settings = DefaultSettings();
        settings.OutputFile = folder / "list.htm";
        entities.Load(TUNEDEX_SOURCE_DIR "/data/html_entities.lst", faults);
        EXPECT_EQ(faults.str(), "");
    }

    void Use(const std::vector<TrackInfo>& infos) {
        tracks = TrackTable(infos.size());
        totals = {};
        for (TrackInfo info : infos) {
            if (const std::size_t colon = info.Duration.find(':'); colon != std::string::npos) {
                info.Seconds = std::stoi(info.Duration) * 60 + std::stoi(info.Duration.substr(colon + 1));
            }
            tracks.Append(info);
            totals.TotalBytes += info.FileSize;
            totals.UntaggedCount += info.TagType == kNoTag ? 1 : 0;
        }
        totals.FoundCount = totals.StoredCount = static_cast<std::int32_t>(infos.size());
        totals.TotalSeconds = 245;
    }
    // `count` tracks that differ only in their titles.
    void UseMany(std::size_t count) {
        std::vector<TrackInfo> infos(count, SevenTracks().front());
        for (std::size_t i = 0; i < count; ++i) {
            infos[i].Title = "Title " + std::to_string(i + 1);
        }
        Use(infos);
    }

    Listing MakeListing(PathStyle style = PathStyle::Unix()) {
        return {settings, tracks, totals, entities, locale, clock, monitor, style};
    }
    bool Write(int type, PathStyle style = PathStyle::Unix()) {
        Listing listing = MakeListing(style);
        return WriteListing(type, listing);
    }
    int ErrorOf(int type) {
        try {
            Write(type);
            return 0;
        } catch (const RunTimeError& error) {
            return error.Number();
        }
    }
    std::string Written(const std::string& name) const { return test::ReadBytes(folder / name); }
    // Writes a listing on one page and returns its bytes.
    std::string Page() {
        EXPECT_FALSE(Write(kHtmlOutput));
        return Written("list.htm");
    }

    test::TestFolder folder;
    Settings settings;
    TrackTable tracks;
    RunTotals totals;
    EntityTable entities;
    std::ostringstream faults;
    Locale locale;
    test::FakeClock clock;
    test::FakeMonitor monitor;
};

} // namespace tunedex
