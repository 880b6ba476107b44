// Compares the whole program with the reference on random collections.
#include "Fakes.h"
#include "PlainListing.h"
#include "RandomCorpus.h"
#include "Startup.h"
#include "Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

namespace tunedex::test {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kCorpora = 1000;

std::map<std::string, std::string> ListingsIn(const TestFolder& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
        if (entry.is_regular_file() && entry.path().filename().string().starts_with("list")) {
            files[entry.path().string()] = ReadBytes(entry.path().string());
        }
    }
    return files;
}

std::vector<std::string> PathsNamedIn(const std::string& log) {
    constexpr std::string_view kOpening = "An error occurred decoding the headers of: \\n\\n";
    std::vector<std::string> paths;
    for (const std::string& line : Split(log, "\r\n")) {
        if (line.starts_with(kOpening)) {
            paths.push_back(line.substr(kOpening.size()));
        }
    }
    return paths;
}

// Lists the corpus with the program.
bool ListFast(const TestFolder& folder, const RandomCorpus& corpus, unsigned readers, std::string& log) {
    FakeApplication fake(folder.Path());
    FakeUserInterface ui;
    fake.application.settings = corpus.ListSettings();
    fake.application.settings.ErrorLog = true;
    fake.application.readers = readers;
    ui.fields = FieldsFor(fake.application.settings);
    const bool written = CreateListCommand(fake.application, ui).Written();
    log = ReadBytes(folder / "Tunedex.log");
    for (const FakeUserInterface::Message& message : ui.messages) {
        log += message.text + "\r\n";
    }
    return written;
}

// A failure names its corpus; a later run can start there.
std::uint32_t FirstSeed() {
    const char* first = std::getenv("TUNEDEX_FIRST_CORPUS");
    return first == nullptr ? 1 : static_cast<std::uint32_t>(std::strtoul(first, nullptr, 10));
}

void Compare(std::uint32_t seed, int& listed) {
    SCOPED_TRACE("corpus " + std::to_string(seed));
    const TestFolder folder;
    const RandomCorpus corpus(folder, seed);
    std::string entities;
    for (const std::string& line : corpus.EntityLines()) {
        entities += line + "\r\n";
    }
    if (!entities.empty()) {
        folder.Write("html_entities.lst", entities);
    }

    const Locale locale;
    const FakeClock clock;
    FakeMonitor monitor;
    plain::Surroundings surroundings{locale, clock, monitor, plain::LoadEntities(corpus.EntityLines())};
    const plain::Collected collected = plain::Collect(corpus.ListSettings());

    std::string log;
    const bool written = ListFast(folder, corpus, 1 + seed % 4, log);
    const auto files = ListingsIn(folder);
    const bool placeless = std::any_of(collected.tracks.begin(), collected.tracks.end(),
                                       [](const TrackInfo& track) { return track.Duration.empty(); });
    const bool possible =
        !collected.tracks.empty() && !(placeless && corpus.ListSettings().OutputFile.ends_with(".m3u"));
    EXPECT_EQ(written, possible) << log;
    EXPECT_EQ(PathsNamedIn(log).size(), collected.undecoded.size());
    if (!possible) {
        EXPECT_TRUE(files.empty());
        return;
    }
    const auto expected = plain::List(corpus.ListSettings(), collected, surroundings);
    ASSERT_EQ(files.size(), expected.size());
    for (const auto& [path, bytes] : expected) {
        ASSERT_TRUE(files.contains(path)) << path;
        EXPECT_EQ(files.at(path), bytes) << path;
    }
    ++listed;
}

TEST(RandomCorpora, AreListedByteForByteAsByTheReference) {
    int listed = 0;
    for (std::uint32_t seed = FirstSeed(); seed <= kCorpora && !testing::Test::HasFailure(); ++seed) {
        Compare(seed, listed);
    }
    // The rest have no files, or are playlists with a track that has no duration.
    EXPECT_GT(listed, static_cast<int>(kCorpora - FirstSeed()) * 3 / 4);
}

} // namespace
} // namespace tunedex::test
