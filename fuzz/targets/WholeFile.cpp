// Input: one byte of options, then a file. The file is read and listed by all three writers.
#include "DefaultSettings.h"
#include "MP3Info.h"
#include "OutputList.h"
#include "PlainReader.h"
#include "RunTimeError.h"
#include "Targets.h"
#include "Text.h"
#include "TextLines.h"
#include "Tracks.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace tunedex::fuzz {

namespace {

constexpr const char* kShortEntities[] = {"38\t&amp;", "60\t&lt;", "62\t&gt;", "34\t&quot;"};

std::string ReadAll(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::size_t Occurrences(const std::string& text, const std::string& wanted) {
    std::size_t count = 0;
    for (std::size_t at = text.find(wanted); at != std::string::npos; at = text.find(wanted, at + 1)) {
        ++count;
    }
    return count;
}

TrackInfo Read(const std::string& file, unsigned choices) {
    // A name with markup and a stray byte.
    const std::string path = "/music/<a href=\"x\"> & \xE9\xE3\x81\x82.mp3";
    MemoryByteSource source(BytesOf(file));
    const bool moveTheArtists = (choices & 1U) != 0;
    TrackReading reading;
    reading.track.FullPath = path;
    ReadTrackInfo(source, {moveTheArtists}, reading);
    const plain::Reading expected = plain::ReadTrack(file, path, moveTheArtists);
    RequireEqualTracks(reading.track, expected.track, "the record of a file");
    Require((reading.decodeError ? reading.decodeError->Number() : 0) == expected.error,
            "the decode error of a file");
    TrackInfo track = reading.track;
    track.BaseFolder = "/music/";
    return track;
}

void CheckPage(const std::string& page) {
    const std::size_t body = page.find("<td>", page.find("<table width=\"100%\""));
    const std::size_t rows = page.find("<tr bgcolor", page.find("</tr>", page.find("<table width=\"100%\"")));
    Require(body == std::string::npos || rows != std::string::npos, "the page has its row");
    const std::string row = page.substr(rows, page.find("</tr>\r\n", rows) - rows);
    // Fifteen cells: no tag text may open or close another.
    Require(Occurrences(row, "<td") == 15 && Occurrences(row, "</td>") == 15,
            "a row has one cell per column");
    Require(Occurrences(row, "<") == 31, "a row contains no markup but its cells");
    Require(page.ends_with("</html>\r\n"), "the page is complete");
}

void CheckListings(const TrackInfo& track, unsigned choices) {
    Settings settings = DefaultSettings();
    settings.Merge = 0;
    settings.SizeType = static_cast<std::int16_t>((choices >> 1U) & 3U);
    settings.DocumentType = (choices & 8U) != 0 ? "XHTML" : "HTML";
    settings.ActiveColumns = "Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|"
                             "File Size|Filename|Folder Path|Full Path";
    TrackTable table(1);
    table.Append(track);
    RequireEqualTracks(table.Copy(1), track, "a record stored in the table");
    RunTotals totals;
    EntityTable entities;
    std::ostringstream faults;
    entities.Load({std::begin(kShortEntities), std::end(kShortEntities)}, "entities", faults);
    const Locale locale;
    const StoppedClock clock;
    SilentMonitor monitor;
    const std::string& folder = EmptyFolder();
    for (const int type : {kHtmlOutput, kTextOutput, kPlaylistOutput}) {
        Settings run = settings;
        run.OutputFile = folder + "list." +
                         (type == kHtmlOutput   ? "htm"
                          : type == kTextOutput ? "txt"
                                                : "m3u");
        Listing listing{run, table, totals, entities, locale, clock, monitor};
        try {
            Require(!WriteListing(type, listing), "no abort without a request");
        } catch (const RunTimeError& error) {
            Require(type == kPlaylistOutput && track.Duration.empty() && error.Number() == 5,
                    "only a playlist fails, and only for a track without a duration");
            Require(!std::filesystem::exists(run.OutputFile), "a failed listing leaves no file");
            continue;
        }
        const std::string written = ReadAll(run.OutputFile);
        if (type == kHtmlOutput) {
            CheckPage(written);
        } else if (type == kPlaylistOutput) {
            Require(written.find("\r\n" + track.FullPath + "\r\n") != std::string::npos,
                    "a playlist contains the path byte for byte");
        } else {
            Require(std::count(written.begin(), written.end(), '\t') >= 28,
                    "a text listing contains every field");
        }
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        Require(entry.path().filename().string().starts_with("list."), "no temporary file is left");
    }
}

} // namespace

void RunWholeFile(Bytes bytes) {
    Input input(bytes);
    const unsigned choices = input.Byte();
    CheckListings(Read(input.Rest(), choices), choices);
}

} // namespace tunedex::fuzz
