// phase_bench: times single phases of a run on generated tracks, each with a lower bound.
//
// usage: phase_bench sort N                    SortTracks; std::sort on the same upper-cased keys
//        phase_bench html|text|m3u N FOLDER    a writer; writing the same bytes through one 64 KiB buffer
//        phase_bench html5 N FOLDER            HTML5 pages, plain and by album; HTML 4.01
//        phase_bench pages N FOLDER            pages of 100 rows; one page; plain files with the same bytes
//        phase_bench abort COLLECTION FOLDER   from the abort request to the return, in each phase
//
// Prints lines of NAME SECONDS; the caller runs it several times and computes the ratios.

#include "Application.h"
#include "DefaultSettings.h"
#include "FolderScanner.h"
#include "OutputList.h"
#include "PlayTime.h"
#include "Sorting.h"
#include "Text.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using Time = std::chrono::steady_clock;

double SecondsOf(const std::function<void()>& work) {
    const auto begun = Time::now();
    work();
    return std::chrono::duration<double>(Time::now() - begun).count();
}

void Print(const std::string& name, double seconds) {
    std::cout << name << ' ' << std::fixed << std::setprecision(4) << seconds << '\n';
}

class QuietMonitor : public tunedex::RunMonitor {
  public:
    void SetStatus(std::string_view /*text*/) override {}
    void SetCountedStatus(std::string_view /*before*/, std::int32_t /*count*/, std::int32_t /*total*/,
                          std::string_view /*after*/) override {}
    void SetMaximum(std::int32_t /*maximum*/) override {}
    void SetPosition(std::int32_t /*position*/) override {}
    bool AbortRequested() override { return false; }
};

// Requests an abort a given time after the phase has started.
class StoppingMonitor final : public QuietMonitor {
  public:
    explicit StoppingMonitor(std::chrono::milliseconds after) : stopAt_(Time::now() + after) {}
    bool AbortRequested() override { return Time::now() >= stopAt_; }
    double SecondsSinceRequest() const {
        return std::chrono::duration<double>(Time::now() - stopAt_).count();
    }

  private:
    Time::time_point stopAt_;
};

class NoReports final : public tunedex::ErrorReporter {
  public:
    void Report(std::string_view /*t*/, std::string_view /*file*/, std::string_view /*folder*/,
                const tunedex::RunTimeError& /*error*/) override {}
};

// In the order of a walk: the tracks of an album together, albums and titles in random order.
tunedex::TrackTable MakeTracks(std::size_t count) {
    std::mt19937 random(1);
    const auto word = [&random](std::size_t length) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i) {
            text += static_cast<char>((i == 0 ? 'A' : 'a') + random() % 26);
        }
        return text;
    };
    std::vector<std::string> artists(std::max<std::size_t>(1, count / 100));
    std::generate(artists.begin(), artists.end(), [&] { return word(5 + random() % 8) + " " + word(6); });
    tunedex::TrackTable table(count);
    tunedex::TrackInfo track;
    std::size_t albumEnd = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (i == albumEnd) {
            albumEnd += 8 + random() % 8;
            track.Artist = artists[random() % artists.size()];
            track.Album = "Album " + std::to_string(random() % 10) + " of " + track.Artist;
        }
        track.Title = word(4 + random() % 8) + " " + word(3 + random() % 9) + " & " + word(4);
        track.FullPath = "/music/" + track.Artist + "/" + track.Album + "/" + track.Title + ".mp3";
        track.BaseFolder = "/music";
        track.FileSize = static_cast<std::int32_t>(random() % 9000000);
        track.Seconds = static_cast<std::int32_t>(10 + random() % 540);
        track.Duration = tunedex::MinutesAndSeconds(track.Seconds);
        track.TagType = tunedex::kId3v2Tag;
        table.Append(track);
    }
    return table;
}

void Sort(std::size_t count) {
    struct Key {
        std::string artist;
        std::string album;
        std::string title;
        std::uint32_t row;
    };
    tunedex::TrackTable table = MakeTracks(count);
    std::vector<Key> keys;
    for (std::uint32_t i = 0; i < count; ++i) {
        const tunedex::TrackRow& row = table.At(i + 1);
        keys.push_back({tunedex::UpperCase(row.Artist), tunedex::UpperCase(row.Album),
                        tunedex::UpperCase(row.Title), i});
    }
    Print("std::sort", SecondsOf([&] {
              std::sort(keys.begin(), keys.end(), [](const Key& a, const Key& b) {
                  return std::tie(a.artist, a.album, a.title) < std::tie(b.artist, b.album, b.title);
              });
          }));
    QuietMonitor monitor;
    Print("SortTracks", SecondsOf([&] { tunedex::SortTracks(table, tunedex::kAscending, monitor); }));
}

// What a writer needs.
struct Bench {
    explicit Bench(tunedex::TrackTable tracks) : table(std::move(tracks)) {
        settings = tunedex::DefaultSettings();
        settings.Spanning = 0;
        entities.Load(TUNEDEX_SOURCE_DIR "/data/html_entities.lst", std::cerr);
        QuietMonitor monitor;
        tunedex::SortTracks(table, tunedex::kAscending, monitor); // as in a run
        totals.FoundCount = totals.StoredCount = static_cast<std::int32_t>(table.Count());
    }
    bool Write(tunedex::RunMonitor& monitor, int type, const std::string& path, std::int16_t spanning = 0) {
        tunedex::Settings copy = settings;
        copy.OutputFile = path;
        copy.Spanning = spanning;
        tunedex::Listing listing{copy, table, totals, entities, locale, clock, monitor};
        return tunedex::WriteListing(type, listing);
    }

    tunedex::TrackTable table;
    tunedex::Settings settings;
    tunedex::RunTotals totals;
    tunedex::EntityTable entities;
    tunedex::Locale locale;
    tunedex::SystemClock clock;
};

std::string ReadWhole(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteThroughBuffer(const std::string& bytes, const std::string& path) {
    constexpr std::size_t kBuffer = 65536;
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    std::string buffer;
    buffer.reserve(kBuffer);
    const auto flush = [&] {
        if (write(file, buffer.data(), buffer.size()) != static_cast<ssize_t>(buffer.size())) {
            std::abort();
        }
        buffer.clear();
    };
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', i), bytes.size() - 1) + 1;
        if (buffer.size() + (end - i) > kBuffer) {
            flush();
        }
        buffer.append(bytes, i, end - i);
        i = end;
    }
    flush();
    close(file);
}

void Writer(int type, const std::string& extension, std::size_t count, const std::string& folder) {
    Bench bench(MakeTracks(count));
    QuietMonitor monitor;
    const std::string path = folder + "/bench" + extension;
    bench.Write(monitor, type, path);
    const std::string bytes = ReadWhole(path);
    std::filesystem::remove(path);
    Print("one-buffer", SecondsOf([&] { WriteThroughBuffer(bytes, path); }));
    std::filesystem::remove(path);
    Print("writer", SecondsOf([&] { bench.Write(monitor, type, path); }));
    std::filesystem::remove(path);
}

void Html5(std::size_t count, const std::string& folder) {
    Bench bench(MakeTracks(count));
    QuietMonitor monitor;
    const std::string path = folder + "/bench.htm";
    const auto write = [&](const std::string& name, const std::string& type, bool byAlbum) {
        bench.settings.DocumentType = type;
        bench.settings.GroupByAlbum = byAlbum;
        const double seconds = SecondsOf([&] { bench.Write(monitor, tunedex::kHtmlOutput, path); });
        std::filesystem::remove(path);
        if (!name.empty()) {
            Print(name, seconds);
        }
    };
    write("", "HTML", false); // the texts are in the processor's cache from here on
    write("html", "HTML", false);
    write("html5", "HTML5", false);
    write("html5-by-album", "HTML5", true);
}

void Pages(std::size_t count, const std::string& folder) {
    Bench bench(MakeTracks(count));
    QuietMonitor monitor;
    const std::string pages = folder + "/pages";
    const std::string plain = folder + "/plain";
    Print("one-page", SecondsOf([&] { bench.Write(monitor, tunedex::kHtmlOutput, folder + "/one.htm"); }));
    std::filesystem::create_directory(pages);
    Print("pages-of-100",
          SecondsOf([&] { bench.Write(monitor, tunedex::kHtmlOutput, pages + "/p.htm", 100); }));
    const std::string empty = folder + "/empty";
    std::filesystem::create_directory(empty);
    Print("empty-files", SecondsOf([&] {
              for (std::size_t i = 0; i < count / 100; ++i) {
                  WriteThroughBuffer("", empty + "/p." + std::to_string(i));
              }
          }));
    std::vector<std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(pages)) {
        contents.push_back(ReadWhole(entry.path()));
    }
    std::filesystem::create_directory(plain);
    Print("plain-files", SecondsOf([&] {
              for (std::size_t i = 0; i < contents.size(); ++i) {
                  const std::string path = plain + "/p." + std::to_string(i);
                  WriteThroughBuffer(contents[i], path + ".new");
                  std::filesystem::rename(path + ".new", path);
              }
          }));
}

void Abort(const std::string& collection, const std::string& folder) {
    using std::chrono::milliseconds;
    tunedex::RunTotals totals;
    NoReports reports;
    tunedex::TrackTable table;
    const auto measure = [](const std::string& name, milliseconds after,
                            const std::function<bool(tunedex::RunMonitor&)>& phase) {
        StoppingMonitor monitor(after);
        const bool aborted = phase(monitor);
        Print(aborted ? name : name + "-ended-first", monitor.SecondsSinceRequest());
    };
    measure("search", milliseconds(5), [&](tunedex::RunMonitor& monitor) {
        return tunedex::FolderScanner(totals, table, monitor, reports, {})
            .ScanFolders(tunedex::ScanMode::Count, collection, true);
    });
    totals.FoundCount = 2000000000;
    measure("read", milliseconds(50), [&](tunedex::RunMonitor& monitor) {
        return tunedex::FolderScanner(totals, table, monitor, reports, {})
            .ScanFolders(tunedex::ScanMode::Collect, collection, true);
    });
    constexpr std::size_t kTracks = 1000000;
    Bench bench(MakeTracks(kTracks));
    for (const int after : {5, 100, 300, 600}) {
        measure("sort-" + std::to_string(after) + "ms", milliseconds(after),
                [&](tunedex::RunMonitor& monitor) {
                    return tunedex::SortTracks(bench.table, tunedex::kAscending, monitor);
                });
    }
    for (const auto& [name, type] : {std::pair{"html", 0}, std::pair{"text", 1}, std::pair{"m3u", 2}}) {
        measure(name, milliseconds(20), [&, type = type, name = name](tunedex::RunMonitor& monitor) {
            return bench.Write(monitor, type, folder + "/abort." + name);
        });
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    const std::string folder = argc > 3 ? argv[3] : "";
    const auto count = [&] { return static_cast<std::size_t>(std::atoll(argv[2])); }; // NOLINT(cert-err34-c)
    if (what == "sort" && argc == 3) {
        Sort(count());
    } else if (what == "html" && argc == 4) {
        Writer(tunedex::kHtmlOutput, ".htm", count(), folder);
    } else if (what == "html5" && argc == 4) {
        Html5(count(), folder);
    } else if (what == "text" && argc == 4) {
        Writer(tunedex::kTextOutput, ".txt", count(), folder);
    } else if (what == "m3u" && argc == 4) {
        Writer(tunedex::kPlaylistOutput, ".m3u", count(), folder);
    } else if (what == "pages" && argc == 4) {
        Pages(count(), folder);
    } else if (what == "abort" && argc == 4) {
        Abort(argv[2], folder);
    } else {
        std::cerr
            << "usage: phase_bench sort N | html|html5|text|m3u|pages N FOLDER | abort COLLECTION FOLDER\n";
        return 2;
    }
    return 0;
}
