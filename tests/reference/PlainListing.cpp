#include "PlainListing.h"

#include "HTMLBits.h"
#include "Numbers.h"
#include "Placeholders.h"
#include "PlainReader.h"
#include "PlainSort.h"
#include "SizeText.h"
#include "StyleSheet.h"
#include "Text.h"

#include <algorithm>
#include <dirent.h>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <utility>

// Brevity and clarity come before speed here.
// NOLINTBEGIN(performance-inefficient-string-concatenation,performance-inefficient-vector-operation)
namespace tunedex::plain {

namespace {

std::string BytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string LastCharacters(const std::string& text, std::size_t count) {
    return UpperCase(text).substr(text.size() < count ? 0 : text.size() - count);
}

std::vector<std::pair<std::string, std::string>> StartsOf(std::string value) {
    if (!value.starts_with("%MULT%")) {
        return {{value, value.ends_with('/') ? value : value + "/"}};
    }
    value = ReplaceAll(value, "%MULT%", "");
    // Entries that are empty here are skipped, even if a separator is appended to them below.
    const std::vector<std::string> entries = Split(value, "%||%");
    value = ReplaceAll(value, "/%||%", "%||%");
    value = ReplaceAll(value, "%||%", "/%||%");
    std::vector<std::pair<std::string, std::string>> starts;
    const std::vector<std::string> normalised = Split(value, "%||%");
    for (std::size_t i = 0; i < normalised.size(); ++i) {
        if (!entries[i].empty()) {
            starts.emplace_back(normalised[i],
                                normalised[i].ends_with('/') ? normalised[i] : normalised[i] + "/");
        }
    }
    return starts;
}

class Walk {
  public:
    Walk(const Settings& settings, Collected& collected) : settings_(settings), collected_(collected) {}

    void Run(const std::string& baseFolder, const std::string& start) {
        std::set<std::pair<dev_t, ino_t>> walked;
        std::string pending = start + std::string(1, '\0');
        while (!pending.empty()) {
            std::string folder = pending.substr(0, pending.find('\0'));
            pending.erase(0, folder.size() + 1);
            folder += folder.ends_with('/') ? "" : "/";
            struct stat status {};
            stat(folder.c_str(), &status);
            if (!walked.emplace(status.st_dev, status.st_ino).second) {
                continue;
            }
            DIR* stream = opendir(folder.c_str());
            while (const dirent* entry = readdir(stream)) {
                Take(entry->d_name, folder, baseFolder, pending);
            }
            closedir(stream);
        }
    }

  private:
    void Take(const std::string& name, const std::string& folder, const std::string& baseFolder,
              std::string& pending) {
        struct stat status {};
        if (name.starts_with('.') || stat((folder + name).c_str(), &status) != 0) {
            return;
        }
        if (settings_.Recurse && S_ISDIR(status.st_mode)) {
            pending = folder + name + "/" + std::string(1, '\0') + pending;
            return;
        }
        if (!S_ISREG(status.st_mode) || LastCharacters(name, 4) != ".MP3") {
            return;
        }
        Reading reading = ReadTrack(BytesOf(folder + name), folder + name, settings_.MoveTheArtists);
        reading.track.BaseFolder = baseFolder;
        collected_.totalBytes += reading.track.FileSize;
        collected_.totalSeconds += reading.track.Seconds;
        collected_.untagged += reading.track.TagType == 0 ? 1 : 0;
        if (reading.error != 0) {
            collected_.undecoded.push_back(reading.track.FullPath);
        }
        collected_.tracks.push_back(std::move(reading.track));
    }

    const Settings& settings_;
    Collected& collected_;
};

// Positions count from 1; 0 means not found.
std::size_t Find(const std::string& text, const std::string& wanted, std::size_t from = 1) {
    const std::size_t found = text.find(wanted, from - 1);
    return found == std::string::npos ? 0 : found + 1;
}

std::vector<std::string> WorkingColumns(const Settings& settings) {
    std::string list = settings.ActiveColumns;
    const std::string upper = UpperCase(list);
    const std::size_t artist = Find(upper, "ARTIST");
    const std::size_t title = Find(upper, "TITLE");
    if (settings.Merge <= 0 || artist == 0 || title == 0) {
        return Split(list, "|");
    }
    const std::size_t start = artist < title ? artist : title;
    const std::size_t prefix = start - 1;
    const std::size_t bar = Find(list, "|", start);
    list = ReplaceAll(ReplaceAll(list, artist < title ? "Title" : "Artist", ""), "||", "|");
    std::string merged;
    if (settings.Merge == 1) {
        merged = "ArtistTitle";
    } else if (settings.Merge == 2) {
        merged = "ArtistAlbumTitle";
        list = ReplaceAll(ReplaceAll(list, "Album", ""), "||", "|");
    }
    const std::size_t rest = std::min(list.size() + 1 - bar, list.size());
    list = list.substr(0, prefix) + merged + list.substr(list.size() - rest);
    if (list.ends_with('|')) {
        list.pop_back();
    }
    if (list.starts_with('|')) {
        list.erase(0, 1);
    }
    return Split(list, "|");
}

std::string Encoded(const std::string& text, bool page) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        i += step.length;
        const auto byte = ToWindows1252(step.character);
        if (step.stray) {
            bytes += static_cast<char>(step.character);
        } else if (byte) {
            bytes += static_cast<char>(*byte);
        } else {
            bytes += page ? "&#" + std::to_string(static_cast<unsigned long>(step.character)) + ";" : "?";
        }
    }
    return bytes;
}

std::string FileName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

std::string FolderPath(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

// The unescaped text of a column other than the merged ones; nothing for an unknown column.
std::optional<std::string> CellText(const std::string& key, const TrackInfo& track, std::size_t number,
                                    const Settings& settings, const Surroundings& surroundings) {
    const std::map<std::string, std::string> texts = {
        {"NUMBER", std::to_string(number)},
        {"ARTIST", track.Artist},
        {"ALBUM", track.Album},
        {"TITLE", track.Title},
        {"YEAR", track.Year},
        {"GENRE", track.Genre},
        {"MPEG TYPE", track.MpegType},
        {"MODE", track.Mode},
        {"BITRATE", track.Bitrate},
        {"FREQUENCY", track.Frequency},
        {"DURATION", track.Duration},
        {"FILE SIZE", SizeText(track.FileSize, settings.SizeType, surroundings.locale)},
        {"FILENAME", FileName(track.FullPath)},
        {"FOLDER PATH", FolderPath(track.FullPath)},
        {"FULL PATH", track.FullPath},
    };
    const auto found = texts.find(key);
    return found == texts.end() ? std::nullopt : std::optional(found->second);
}

std::string TextListing(const Settings& settings, const std::vector<TrackInfo>& tracks,
                        const Surroundings& surroundings) {
    const std::vector<std::string> columns = WorkingColumns(settings);
    std::string listing;
    std::string line;
    for (const std::string& column : columns) {
        const std::string key = UpperCase(column);
        line += key == "ARTISTTITLE"        ? "Artist: Title"
                : key == "ARTISTALBUMTITLE" ? "Artist (Album): Title"
                                            : column;
        line += "\t";
    }
    listing += Encoded(line.substr(0, line.size() - 1), false) + "\r\n";
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        const TrackInfo& track = tracks[i];
        line.clear();
        for (const std::string& column : columns) {
            const std::string key = UpperCase(column);
            const std::string album = track.Album.empty() ? "" : " (" + track.Album + ")";
            if (key == "ARTISTTITLE") {
                line += track.Artist + ": " + track.Title + "\t";
            } else if (key == "ARTISTALBUMTITLE") {
                line += track.Artist + album + ": " + track.Title + "\t";
            } else if (const auto text = CellText(key, track, i + 1, settings, surroundings)) {
                line += *text + "\t";
            }
        }
        listing += Encoded(line.substr(0, line.size() - 1), false) + "\r\n";
    }
    return listing;
}

std::string Playlist(const std::vector<TrackInfo>& tracks) {
    const bool ascii = std::all_of(tracks.begin(), tracks.end(), [](const TrackInfo& track) {
        return std::all_of(track.FullPath.begin(), track.FullPath.end(),
                           [](char c) { return static_cast<unsigned char>(c) < 128; });
    });
    std::string listing = "#EXTM3U\r\n";
    for (const TrackInfo& track : tracks) {
        const std::size_t colon = track.Duration.find(':');
        const double seconds = LeadingNumber(track.Duration.substr(0, colon)) * 60 +
                               LeadingNumber(track.Duration.substr(colon + 1));
        const std::string line = "#EXTINF:" + std::to_string(static_cast<long long>(seconds)) + "," +
                                 track.Artist + ": " + track.Title;
        listing += (ascii ? Encoded(line, false) : line) + "\r\n" + track.FullPath + "\r\n";
    }
    return listing;
}

std::string Link(const Settings& settings, const TrackInfo& track) {
    std::string target;
    if (settings.LinkType == 0) {
        target = track.FullPath;
    } else if (settings.LinkType == 1) {
        target = "/" + ReplaceAll(track.FullPath, ":", "");
    } else if (settings.LinkType == 2) {
        const std::string base = track.BaseFolder + (track.BaseFolder.ends_with('/') ? "" : "/");
        const std::size_t found = track.FullPath.find(base);
        target = found == std::string::npos ? track.FullPath : track.FullPath.substr(found + base.size());
    }
    return settings.LinkPrefix + target;
}

std::string Row(const Settings& settings, const TrackInfo& track, std::size_t number, int kind,
                const std::vector<std::string>& columns, const Surroundings& surroundings) {
    const auto escape = [&](const std::string& text) {
        return Escape(surroundings.entities, text, text.max_size()).text;
    };
    const std::size_t background = kind == 2 ? kAlternateBackground : kCellBackground;
    const std::string open = FontOpen(settings, kCellFont, kind == 2 ? kAlternateText : kCellText) +
                             StrengthOpen(settings, kCellFont);
    const std::string close = StrengthClose(settings, kCellFont) + FontClose(settings);
    std::string row = Indent(6) + "<tr bgcolor=\"#" + settings.Colour.at(background) + "\"" +
                      (kind == 2 && settings.FontCSS ? " class=\"r2\"" : "") + ">";
    for (const std::string& column : columns) {
        const std::string key = UpperCase(column);
        const std::string album = track.Album.empty() ? "" : " (" + escape(track.Album) + ")";
        std::string content;
        if (key == "ARTISTTITLE") {
            content = ">" + open + "<b>" + escape(track.Artist) + ":</b> " + escape(track.Title);
        } else if (key == "ARTISTALBUMTITLE") {
            content = ">" + open + "<b>" + escape(track.Artist) + album + ":</b> " + escape(track.Title);
        } else if (const auto text = CellText(key, track, number, settings, surroundings)) {
            const std::set<std::string> right = {"NUMBER", "BITRATE", "FREQUENCY", "DURATION", "FILE SIZE"};
            const std::set<std::string> blank = {"ALBUM", "YEAR", "GENRE"};
            content = (right.contains(key) ? " align=\"right\">" : ">") + open;
            if (key == "FILE SIZE" || key == "NUMBER") {
                content += *text;
            } else {
                content += text->empty() && blank.contains(key) ? "&nbsp;" : escape(*text);
            }
        }
        row += "<td" + content + close + "</td>";
    }
    if (settings.DoLinks) {
        row += "<td align=\"center\">" + open + "<a href=\"" + Link(settings, track) + "\">Link</a>" + close +
               "</td>";
    }
    return row + "</tr>\r\n";
}

std::string Padded(std::size_t number) {
    std::string text = std::to_string(number);
    while (text.size() < 3) {
        text = "0" + text;
    }
    return text;
}

std::map<std::string, std::string> Pages(const Settings& settings, const std::vector<TrackInfo>& tracks,
                                         const Surroundings& surroundings) {
    const std::vector<std::string> columns = WorkingColumns(settings);
    const std::size_t perPage = settings.Spanning > 0 ? static_cast<std::size_t>(settings.Spanning) : 0;
    std::size_t count = 1;
    if (perPage > 0 && perPage <= tracks.size()) {
        count = tracks.size() / perPage + (tracks.size() % perPage > 0 ? 1 : 0);
    }
    const std::size_t stop = settings.OutputFile.rfind('.');
    const std::string baseName = settings.OutputFile.substr(0, stop);
    const std::string extension = settings.OutputFile.substr(stop);
    const PageFiles files(settings.OutputFile, settings.Spanning, tracks.size());

    std::map<std::string, std::string> pages;
    for (std::size_t number = 1; number <= count; ++number) {
        const auto page32 = static_cast<std::int32_t>(number);
        const std::string path =
            count > 1 ? baseName + "." + Padded(number) + extension : settings.OutputFile;
        const std::string title = count > 1 ? settings.WindowTitle + " - Page " + std::to_string(number) +
                                                  " of " + std::to_string(count)
                                            : settings.WindowTitle;
        std::string page;
        std::string navigation;
        if (count > 1) {
            WriteNavigation(navigation, page32, files, PathStyle::Unix());
        }
        WriteHeadStart(page, settings);
        page += title;
        std::string styleBlock;
        WriteStyleBlock(styleBlock, settings);
        WriteHeadRest(page, settings, styleBlock);
        page += navigation;
        WritePageHeading(page, settings, page32, static_cast<std::int32_t>(count));
        std::vector<Column> heads;
        for (const std::string& column : columns) {
            heads.push_back({column, ColumnKeyOf(column)});
        }
        WriteTableHead(page, settings, heads);
        const std::size_t first = perPage > 0 ? (number - 1) * perPage + 1 : 1;
        const std::size_t last = perPage > 0 ? number * perPage : tracks.size();
        int kind = 0;
        for (std::size_t i = first; i <= last && i <= tracks.size(); ++i) {
            if (settings.AltRows) {
                kind = kind + 1 == 3 ? 1 : kind + 1;
            }
            page += Row(settings, tracks[i - 1], i, kind, columns, surroundings);
        }
        WriteTableFoot(page, settings, columns.size());
        page += navigation;
        WriteEnd(page, settings);
        pages[path] = Encoded(page, true);
    }
    return pages;
}

} // namespace

Collected Collect(const Settings& settings) {
    Collected collected;
    Walk walk(settings, collected);
    for (const auto& [baseFolder, start] : StartsOf(settings.Directory)) {
        walk.Run(baseFolder, start);
    }
    return collected;
}

std::map<std::string, std::string> List(Settings settings, const Collected& collected,
                                        const Surroundings& surroundings) {
    std::vector<TrackInfo> tracks = collected.tracks;
    if (settings.SortOrder != 0) {
        SortTracks(tracks, settings.SortOrder);
    }
    std::string& path = settings.OutputFile;
    const std::string extension =
        path.find('.') == std::string::npos ? "" : UpperCase(path.substr(path.rfind('.')));
    if (extension == ".TXT" || extension == ".TEXT") {
        path += LastCharacters(path, 4) == ".TXT" ? "" : ".txt";
        return {{path, TextListing(settings, tracks, surroundings)}};
    }
    if (extension == ".M3U") {
        return {{path, Playlist(tracks)}};
    }
    if (LastCharacters(path, 5) != ".HTML" && LastCharacters(path, 4) != ".HTM") {
        path += ".htm";
    }
    RunTotals totals;
    totals.UntaggedCount = collected.untagged;
    totals.TotalBytes = collected.totalBytes;
    totals.TotalSeconds = collected.totalSeconds;
    TrackTable counted(tracks.size());
    for (const TrackInfo& track : tracks) {
        counted.Append(track);
    }
    const EntityTable noEntities;
    Listing listing{
        settings, counted, totals, noEntities, surroundings.locale, surroundings.clock, surroundings.monitor};
    ExpandTitlePlaceholders(listing, settings.DocumentType == "XHTML" ? "<br />" : "<br>");
    return Pages(settings, tracks, surroundings);
}

} // namespace tunedex::plain
// NOLINTEND(performance-inefficient-string-concatenation,performance-inefficient-vector-operation)
