#include "FolderScanner.h"

#include "Fakes.h"
#include "FileRights.h"
#include "Mp3Builder.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <sys/resource.h>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

namespace fs = std::filesystem;
using test::Audio;
using test::FakeMonitor;
using test::FakeReporter;
using test::Id3v1Tag;
using test::TestFolder;

constexpr const char* kWalkError = R"(scanning the directory: \n\n%D\n\n%N: %S)";
constexpr const char* kDecodeError = R"(decoding the headers of: \n\n%F)";

// Runs both passes as a job does.
struct Scan {
    explicit Scan(unsigned readerCount = 1, ReadOptions readOptions = {})
        : readers(readerCount), options(std::move(readOptions)) {}

    bool Count(const std::string& folders, bool recurse = true) {
        return FolderScanner(totals, table, monitor, reporter, options, readers, walkErrors)
            .ScanFolders(ScanMode::Count, folders, recurse);
    }
    bool Collect(const std::string& folders, bool recurse = true) {
        table = TrackTable(static_cast<std::size_t>(totals.FoundCount));
        return FolderScanner(totals, table, monitor, reporter, options, readers, walkErrors)
            .ScanFolders(ScanMode::Collect, folders, recurse);
    }
    bool Run(const std::string& folders, bool recurse = true) {
        return Count(folders, recurse) || Collect(folders, recurse);
    }
    std::vector<TrackInfo> Tracks() const {
        std::vector<TrackInfo> tracks;
        for (std::size_t position = 1; position <= table.Count(); ++position) {
            tracks.push_back(table.Copy(position));
        }
        return tracks;
    }

    unsigned readers;
    ReadOptions options;
    WalkErrors walkErrors = WalkErrors::EndTheWalk;
    RunTotals totals;
    TrackTable table;
    FakeMonitor monitor;
    FakeReporter reporter;
};

std::string Tagged(const std::string& title, std::size_t bytes = 16000) {
    return Audio(bytes - 128) + Id3v1Tag({title, "artist", "album", "1999", "", 17});
}

TEST(ScanFolders, StoresRecordsAndTotals) {
    const TestFolder folder;
    folder.Write("a.mp3", Tagged("one", 16000));
    folder.Write("b.mp3", Audio(32000));
    folder.Write("c.mp3", Tagged("three", 48000));
    Scan scan;
    EXPECT_FALSE(scan.Run(folder.Path()));
    EXPECT_EQ(scan.totals.FoundCount, 3);
    EXPECT_EQ(scan.totals.StoredCount, 3);
    EXPECT_EQ(scan.totals.UntaggedCount, 1);
    EXPECT_EQ(scan.totals.TotalBytes, 96000);
    EXPECT_EQ(scan.totals.TotalSeconds, 1 + 2 + 3);
    EXPECT_TRUE(scan.reporter.reports.empty());
    auto tracks = scan.Tracks();
    std::sort(tracks.begin(), tracks.end(),
              [](const auto& a, const auto& b) { return a.FullPath < b.FullPath; });
    ASSERT_EQ(tracks.size(), 3U);
    EXPECT_TRUE(tracks[0] ==
                (TrackInfo{folder / "a.mp3", folder.Path(), 16000, "artist", "one", "album", "1999", "Rock",
                           "128", "44100", "Joint Stereo", "1.0 III", "0:01", 1, 1}));
    EXPECT_TRUE(tracks[1] ==
                (TrackInfo{folder / "b.mp3", folder.Path(), 32000, folder / "b.mp3", "No ID3 Tags!", "", "",
                           "", "128", "44100", "Joint Stereo", "1.0 III", "0:02", 0, 2}));
}

TEST(ScanFolders, CountsInTheFirstPassAndCollectsInTheSecond) {
    const TestFolder folder;
    folder.Write("a.mp3", Tagged("one"));
    Scan scan;
    scan.totals.FoundCount = 77;
    EXPECT_FALSE(scan.Count(folder.Path()));
    EXPECT_EQ(scan.totals.FoundCount, 1);
    EXPECT_EQ(scan.totals.StoredCount, 0);
    EXPECT_EQ(scan.table.Count(), 0U);
    scan.totals.StoredCount = 77;
    EXPECT_FALSE(scan.Collect(folder.Path()));
    EXPECT_EQ(scan.totals.StoredCount, 1);
    EXPECT_EQ(scan.totals.FoundCount, 1);
}

TEST(ScanFolders, MovesTheArtistsWhenEnabled) {
    const TestFolder folder;
    folder.Write("a.mp3", Audio(500) + Id3v1Tag({"t", "The Who", "", "", "", 0}));
    Scan moving(1, {true});
    moving.Run(folder.Path());
    EXPECT_EQ(moving.Tracks().at(0).Artist, "Who, The");
    Scan leaving(1, {false});
    leaving.Run(folder.Path());
    EXPECT_EQ(leaving.Tracks().at(0).Artist, "The Who");
}

TEST(ScanFolders, ReportsProgressForEachFile) {
    const TestFolder folder;
    folder.Write("a.mp3", Tagged("one"));
    folder.Write("b.mp3", Tagged("two"));
    Scan scan;
    scan.Run(folder.Path());
    EXPECT_EQ(scan.monitor.statuses, (std::vector<std::string>{"Retrieving MPEG/ID3 information (1/2)...",
                                                               "Retrieving MPEG/ID3 information (2/2)..."}));
    EXPECT_EQ(scan.monitor.positions, (std::vector<std::int32_t>{1, 2}));
}

TEST(ScanFolders, RecordsTheStartFolderAsInTheSetting) {
    const TestFolder folder;
    folder.Write("a/sub/x.mp3", Tagged("x"));
    folder.Write("b/y.mp3", Tagged("y"));
    const auto bases = [&](const std::string& value) {
        Scan scan;
        EXPECT_FALSE(scan.Run(value));
        std::vector<std::string> texts;
        for (const TrackInfo& track : scan.Tracks()) {
            texts.push_back(track.BaseFolder);
            EXPECT_TRUE(track.FullPath.find("//") == std::string::npos) << track.FullPath;
        }
        return texts;
    };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(bases(folder / "a"), Texts{folder / "a"});
    EXPECT_EQ(bases(folder / "a/"), Texts{folder / "a/"});
    EXPECT_EQ(bases("%MULT%" + (folder / "a") + "%||%" + (folder / "b/")),
              (Texts{folder / "a/", folder / "b/"}));
    EXPECT_EQ(bases("%MULT%" + (folder / "b/") + "%||%" + (folder / "a")),
              (Texts{folder / "b/", folder / "a"}));
}

TEST(ScanFolders, CountsAcrossAllFoldersOfAList) {
    const TestFolder folder;
    folder.Write("a/1.mp3", Tagged("x"));
    folder.Write("b/2.mp3", Tagged("y"));
    Scan scan;
    EXPECT_FALSE(scan.Run("%MULT%" + (folder / "a") + "%||%%||%" + (folder / "b") + "%||%"));
    EXPECT_EQ(scan.totals.FoundCount, 2);
    EXPECT_EQ(scan.totals.StoredCount, 2);
    ASSERT_EQ(scan.table.Count(), 2U);
    EXPECT_EQ(scan.Tracks()[0].FullPath, folder / "a/1.mp3");
    EXPECT_EQ(scan.Tracks()[1].FullPath, folder / "b/2.mp3");
}

TEST(ScanFolders, ReportsAFileThatCannotBeDecodedAndContinues) {
    const TestFolder folder;
    folder.Write("bad.mp3", std::string(300, 'a') + Id3v1Tag({"kept", "a", "", "", "", 0}));
    folder.Write("good.mp3", Tagged("good"));
    Scan scan;
    EXPECT_FALSE(scan.Run(folder.Path()));
    EXPECT_EQ(scan.reporter.reports,
              (std::vector<FakeReporter::Reported>{{kDecodeError, folder / "bad.mp3", "", 62}}));
    EXPECT_EQ(scan.totals.StoredCount, 2);
    EXPECT_EQ(scan.totals.TotalSeconds, 1);
    EXPECT_EQ(scan.totals.TotalBytes, 428 + 16000);
}

TEST(ScanFolders, StopsAtAFolderNamedLikeAFileAndKeepsEarlierRecords) {
    const TestFolder folder;
    folder.Write("first/1.mp3", Tagged("x"));
    folder.Make("second/Live.mp3");
    folder.Write("third/3.mp3", Tagged("z"));
    for (const unsigned readers : {1U, 4U}) {
        Scan scan(readers);
        EXPECT_FALSE(scan.Run("%MULT%" + (folder / "first") + "%||%" + (folder / "second") + "%||%" +
                                  (folder / "third"),
                              false));
        EXPECT_EQ(scan.totals.FoundCount, 3);
        EXPECT_EQ(scan.totals.StoredCount, 1);
        EXPECT_EQ(scan.table.Count(), 1U) << "no empty row, and no row for the folder";
        EXPECT_EQ(scan.reporter.reports,
                  (std::vector<FakeReporter::Reported>{{kWalkError, "", folder / "second", 53}}));
    }
}

TEST(ScanFolders, ReportsAFolderThatCannotBeListedInEachPass) {
    const TestFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    folder.Write("a/1.mp3", Tagged("x"));
    folder.Make("closed");
    fs::permissions(folder / "a", fs::perms::all);
    fs::permissions(folder / "a/1.mp3", fs::perms::all);
    fs::permissions(folder / "closed", fs::perms::none);
    const test::OrdinaryRights rights;
    for (const unsigned readers : {1U, 3U}) {
        Scan scan(readers);
        EXPECT_FALSE(
            scan.Run("%MULT%" + (folder / "a") + "%||%" + (folder / "closed") + "%||%" + (folder / "a")));
        const FakeReporter::Reported reported{kWalkError, "", folder / "closed", 75};
        EXPECT_EQ(scan.reporter.reports, (std::vector<FakeReporter::Reported>{reported, reported}));
        EXPECT_EQ(scan.totals.FoundCount, 1);
        EXPECT_EQ(scan.table.Count(), 1U);
    }
}

TEST(ScanFolders, ListsAnUnreadableFileWithoutTags) {
    const TestFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    folder.Write("a.mp3", Tagged("secret"));
    fs::permissions(folder / "a.mp3", fs::perms::none);
    const test::OrdinaryRights rights;
    Scan scan;
    EXPECT_FALSE(scan.Run(folder.Path()));
    ASSERT_EQ(scan.table.Count(), 1U);
    EXPECT_EQ(scan.Tracks()[0].Artist, folder / "a.mp3");
    EXPECT_EQ(scan.Tracks()[0].FileSize, 16000);
    EXPECT_EQ(scan.totals.UntaggedCount, 1);
    EXPECT_EQ(scan.reporter.reports,
              (std::vector<FakeReporter::Reported>{{kDecodeError, folder / "a.mp3", "", 75}}));
}

// Eight albums of one track, a folder and a file that may not be read, and a folder named like a file.
struct DamagedCollection {
    DamagedCollection() {
        for (int album = 1; album <= 8; ++album) {
            folder.Write("album " + std::to_string(album) + "/a.mp3", Tagged("a"));
        }
        fs::create_directory(folder / "lost+found");
        fs::create_directory(folder / "secret");
        folder.Write("album 1/locked.mp3", Tagged("secret"));
        fs::permissions(folder.Path(), fs::perms::all);
        for (const char* name : {"lost+found", "secret", "album 1/locked.mp3"}) {
            fs::permissions(folder / name, fs::perms::none);
        }
    }
    DamagedCollection(const DamagedCollection&) = delete;
    DamagedCollection& operator=(const DamagedCollection&) = delete;
    ~DamagedCollection() {
        fs::permissions(folder / "lost+found", fs::perms::owner_all);
        fs::permissions(folder / "secret", fs::perms::owner_all);
    }

    const TestFolder folder;
};

TEST(ScanFolders, SkipsWhatItCannotReadAndReportsItOnce) {
    const DamagedCollection collection;
    const test::OrdinaryRights rights;
    for (const unsigned readers : {1U, 3U}) {
        Scan scan(readers);
        scan.walkErrors = WalkErrors::Skip;
        EXPECT_FALSE(
            scan.Run("%MULT%" + (collection.folder / "missing") + "%||%" + collection.folder.Path()));
        EXPECT_EQ(scan.table.Count(), 9U);
        EXPECT_EQ(scan.totals.Unread.folders,
                  (std::set<std::string>{collection.folder / "missing/", collection.folder / "lost+found/",
                                         collection.folder / "secret/"}));
        EXPECT_EQ(scan.totals.Unread.files,
                  (std::set<std::string>{collection.folder / "album 1/locked.mp3"}));
        EXPECT_EQ(scan.reporter.reports.size(), 4U);
        const FakeReporter::Reported first{kWalkError, "", collection.folder / "missing", 76};
        EXPECT_EQ(scan.reporter.reports.front(), first);
    }
}

TEST(ScanFolders, CountsWhatEndsTheWalk) {
    const DamagedCollection collection;
    const test::OrdinaryRights rights;
    Scan scan;
    EXPECT_FALSE(scan.Run(collection.folder / "secret"));
    EXPECT_EQ(scan.totals.Unread.folders, (std::set<std::string>{collection.folder / "secret/"}));
    EXPECT_FALSE(scan.Run(collection.folder / "album 1"));
    EXPECT_EQ(scan.totals.Unread.files, (std::set<std::string>{collection.folder / "album 1/locked.mp3"}));
}

TEST(ScanFolders, SkipsAFileWithoutASize) {
    const TestFolder folder;
    folder.Write("a.mp3", Tagged("a"));
    folder.Write("Live.mp3/b.mp3", Tagged("b"));
    for (const unsigned readers : {1U, 3U}) {
        Scan scan(readers);
        scan.walkErrors = WalkErrors::Skip;
        EXPECT_FALSE(scan.Run(folder.Path(), false));
        EXPECT_EQ(scan.totals.FoundCount, 2);
        EXPECT_EQ(scan.totals.StoredCount, 1);
        EXPECT_EQ(scan.table.Count(), 1U);
        EXPECT_EQ(scan.totals.Unread.files, (std::set<std::string>{folder / "Live.mp3"}));
        const std::string path = folder.Path().substr(0, folder.Path().find_last_not_of('/') + 1);
        EXPECT_EQ(scan.reporter.reports, (std::vector<FakeReporter::Reported>{{kWalkError, "", path, 53}}));
    }
}

TEST(ScanFolders, CountsTheTagsThatOnlyModernReadersUnderstand) {
    const std::string latin = test::Id3v2Tag({{"TIT2", test::Latin1("a")}});
    std::string version4 = latin;
    version4[3] = 4;
    std::string unsynchronised = latin;
    unsynchronised[5] = static_cast<char>(0x80);
    struct Row {
        std::string tag;
        int modern;
    };
    const Row rows[] = {
        {latin, 0},
        {version4, 1},
        {unsynchronised, 1},
        {test::Id3v2Tag({{"TIT2", std::string("\1\xff\xfe"
                                              "a\0",
                                              5)}}),
         1},
        {test::Id3v2Tag({{"TALB", "\3" + std::string(5000, 'a')}}), 1},
        {test::Id3v2Tag({{"TIT2", "x"}, {"TXXX", "\3x"}}), 0},
        {test::Id3v2Tag({{"TIT2", ""}}), 0},
        {"", 0},
    };
    for (const Row& row : rows) {
        const TestFolder folder;
        folder.Write("a.mp3", row.tag + Audio(2000));
        Scan scan;
        EXPECT_FALSE(scan.Run(folder.Path()));
        EXPECT_EQ(scan.totals.ModernTagCount, row.modern);
        EXPECT_FALSE(scan.totals.Unread.Any());
    }
}

TEST(ScanFolders, ReportsFoldersWithoutTheirSeparator) {
    Scan scan;
    scan.monitor.abortAtQuestion = 1; // keeps the walk of / short
    EXPECT_TRUE(scan.Count("/", false));
    EXPECT_TRUE(scan.reporter.reports.empty());
    Scan missing;
    EXPECT_FALSE(missing.Count("/no such folder/", false));
    EXPECT_EQ(missing.reporter.reports,
              (std::vector<FakeReporter::Reported>{{kWalkError, "", "/no such folder", 76}}));
}

TEST(ScanFolders, StoresAtMostAsManyFilesAsWereCounted) {
    const TestFolder folder;
    folder.Write("a.mp3", Tagged("a"));
    folder.Write("b.mp3", Tagged("b"));
    for (const unsigned readers : {1U, 4U}) {
        Scan scan(readers);
        scan.Count(folder.Path());
        scan.totals.FoundCount = 1;
        EXPECT_FALSE(scan.Collect(folder.Path()));
        EXPECT_EQ(scan.totals.StoredCount, 1);
        EXPECT_EQ(scan.table.Count(), 1U);
        EXPECT_TRUE(scan.reporter.reports.empty()) << "the pass ends without an error";
    }
}

TEST(ScanFolders, KeepsNoEmptyRowsForFilesRemovedAfterTheCount) {
    const TestFolder folder;
    folder.Write("a.mp3", Tagged("a"));
    Scan scan;
    scan.Count(folder.Path());
    scan.totals.FoundCount = 5;
    EXPECT_FALSE(scan.Collect(folder.Path()));
    EXPECT_EQ(scan.table.Count(), 1U);
    EXPECT_EQ(scan.totals.StoredCount, 1);
}

TEST(ScanFolders, ReturnsTrueWhenTheUserAborts) {
    const TestFolder folder;
    for (int i = 0; i < 40; ++i) {
        folder.Write(std::to_string(i) + ".mp3", Tagged("x"));
    }
    for (const unsigned readers : {1U, 2U}) {
        Scan counting(readers);
        counting.monitor.abortAtQuestion = 5;
        EXPECT_TRUE(counting.Count(folder.Path()));
        EXPECT_EQ(counting.totals.FoundCount, 5) << "polled after each entry";
        Scan collecting(readers);
        collecting.Count(folder.Path());
        collecting.monitor.asked = 0;
        collecting.monitor.abortAtQuestion = 5;
        EXPECT_TRUE(collecting.Collect(folder.Path()));
        EXPECT_LE(collecting.table.Count(), 5U);
        EXPECT_TRUE(collecting.reporter.reports.empty());
        EXPECT_EQ(static_cast<std::size_t>(collecting.totals.StoredCount), collecting.table.Count());
        if (readers == 1) {
            EXPECT_GE(collecting.table.Count(), 2U) << "records stored before the abort are kept";
        }
    }
}

// A tree with tags of both kinds and none, files that cannot be decoded, and enough folders to fill several
// batches.
void MakeTree(const TestFolder& folder) {
    int number = 0;
    for (int album = 0; album < 40; ++album) {
        for (int track = 0; track < 9; ++track, ++number) {
            const std::string name = "album " + std::to_string(album) + "/" + std::to_string(track) + ".mp3";
            switch (number % 5) {
            case 0:
                folder.Write(name, Tagged("title " + std::to_string(number)));
                break;
            case 1:
                folder.Write(name, Audio(1000 + static_cast<std::size_t>(number)));
                break;
            case 2:
                folder.Write(name, std::string(static_cast<std::size_t>(number), 'x'));
                break;
            case 3:
                folder.Write(name,
                             test::Id3v2Tag({{"TIT2", test::Latin1(name)}}) + test::XingAudio(3000, 50));
                break;
            default:
                folder.Write(name, "");
            }
        }
    }
}

void ExpectSame(const Scan& scan, const Scan& expected) {
    EXPECT_TRUE(scan.Tracks() == expected.Tracks());
    EXPECT_TRUE(scan.reporter.reports == expected.reporter.reports);
    EXPECT_EQ(scan.totals.FoundCount, expected.totals.FoundCount);
    EXPECT_EQ(scan.totals.StoredCount, expected.totals.StoredCount);
    EXPECT_EQ(scan.totals.UntaggedCount, expected.totals.UntaggedCount);
    EXPECT_EQ(scan.totals.TotalBytes, expected.totals.TotalBytes);
    EXPECT_EQ(scan.totals.TotalSeconds, expected.totals.TotalSeconds);
    EXPECT_EQ(scan.monitor.statuses, expected.monitor.statuses);
    EXPECT_EQ(scan.monitor.positions, expected.monitor.positions);
}

TEST(ScanFolders, GivesTheSameResultWithAnyNumberOfReaders) {
    const TestFolder folder;
    MakeTree(folder);
    Scan alone(1);
    EXPECT_FALSE(alone.Run(folder.Path()));
    ASSERT_EQ(alone.table.Count(), 360U);
    ASSERT_GT(alone.reporter.reports.size(), 100U);
    for (const unsigned readers : {2U, 8U, 32U, 0U}) {
        SCOPED_TRACE(readers);
        Scan together(readers);
        EXPECT_FALSE(together.Run(folder.Path()));
        ExpectSame(together, alone);
    }
}

TEST(ScanFolders, StopsAtTheSameFileWithAnyNumberOfReaders) {
    const TestFolder folder;
    MakeTree(folder);
    // A folder named like a file ends the walk in the middle; the position depends on the directory order.
    folder.Make("album 20/x.mp3");
    std::string list = "%MULT%";
    for (int album = 0; album < 40; ++album) {
        list += (album > 0 ? "%||%" : "") + (folder / ("album " + std::to_string(album)));
    }
    Scan alone(1);
    EXPECT_FALSE(alone.Run(list, false));
    ASSERT_GE(alone.table.Count(), 180U);
    ASSERT_LE(alone.table.Count(), 189U);
    EXPECT_EQ(alone.reporter.reports.back(),
              (FakeReporter::Reported{kWalkError, "", folder / "album 20", 53}));
    for (const unsigned readers : {2U, 8U, 32U, 0U}) {
        SCOPED_TRACE(readers);
        Scan together(readers);
        EXPECT_FALSE(together.Run(list, false));
        ExpectSame(together, alone);
    }
}

TEST(ScanFolders, WorksWithFewDescriptors) {
    const TestFolder folder;
    MakeTree(folder);
    Scan alone(1);
    alone.Run(folder.Path());
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit few = before;
    few.rlim_cur = 24;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    for (const unsigned readers : {1U, 8U, 32U}) {
        SCOPED_TRACE(readers);
        Scan together(readers);
        EXPECT_FALSE(together.Run(folder.Path()));
        ExpectSame(together, alone);
    }
    setrlimit(RLIMIT_NOFILE, &before);
}

} // namespace
} // namespace tunedex
