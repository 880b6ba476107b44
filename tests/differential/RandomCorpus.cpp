#include "RandomCorpus.h"

#include "DefaultSettings.h"
#include "Mp3Builder.h"

#include <filesystem>

namespace tunedex::test {

namespace fs = std::filesystem;

namespace {

const std::vector<std::string> kWords = {"The ",     "the",  "A",    "Band", "song", "SONG", "\xC3\xA9",
                                         "\xC3\x89", " ",    "&",    "<b>",  "\"",   "'",    "\xE3\x81\x82",
                                         "\xE9",     "\xFF", "\x80", "100%", "%N",   ":",    ";"};

} // namespace

RandomCorpus::RandomCorpus(const TestFolder& folder, std::uint32_t seed) : folder_(folder), random_(seed) {
    MakeFolders();
    MakeSettings();
    MakeEntities();
}

unsigned RandomCorpus::Below(unsigned limit) {
    // Not a standard distribution: those differ between libraries.
    return static_cast<unsigned>(random_() % limit);
}

std::string RandomCorpus::Pick(const std::vector<std::string>& choices) {
    return choices[Below(static_cast<unsigned>(choices.size()))];
}

std::string RandomCorpus::Text(bool mayHoldAnyByte) {
    std::string text;
    for (unsigned words = Below(5); words > 0; --words) {
        text += Pick(kWords);
    }
    if (mayHoldAnyByte && OneIn(4)) {
        text += static_cast<char>(Below(256));
    }
    return text;
}

std::string RandomCorpus::Name() {
    std::string name;
    for (const char c : Text(false) + std::to_string(Below(1000))) {
        name += c == '/' ? '_' : c;
    }
    return name;
}

std::string RandomCorpus::Id3v2() {
    std::vector<Id3v2Frame> frames;
    for (unsigned count = Below(7); count > 0; --count) {
        frames.push_back({Pick({"TIT2", "TPE1", "TALB", "TYER", "TCON", "TXXX"}),
                          (OneIn(6) ? std::string() : Latin1(Text(true)))});
    }
    std::string tag = Id3v2Tag(frames, Below(20));
    if (OneIn(6)) {
        tag[6 + Below(4)] = static_cast<char>(Below(256)); // a wrong size
    }
    if (OneIn(8)) {
        tag[Below(static_cast<unsigned>(tag.size()))] = static_cast<char>(Below(256));
    }
    return tag;
}

std::string RandomCorpus::Id3v1() {
    Id3v1Fields fields;
    fields.title = Text(true);
    fields.artist = Text(true);
    fields.album = OneIn(2) ? "" : Text(true);
    fields.year = OneIn(2) ? "1999" : "";
    fields.genre = static_cast<std::uint8_t>(Below(256));
    return Id3v1Tag(fields);
}

std::string RandomCorpus::File() {
    std::string bytes;
    if (!OneIn(3)) {
        bytes += Id3v2();
    }
    for (unsigned pieces = Below(3); pieces > 0; --pieces) {
        bytes += OneIn(2) ? std::string(Below(3000), '\0') : std::string(Below(9), '\xFF');
    }
    std::string header = "\xFF\xFB\x90\x64";
    if (OneIn(2)) {
        for (std::size_t i = 1; i < header.size(); ++i) {
            header[i] = static_cast<char>(Below(256));
        }
    }
    if (!OneIn(8)) {
        bytes += OneIn(3) ? XingAudio(60 + Below(3000), Below(OneIn(4) ? 3 : 5000), header)
                          : Audio(4 + Below(60000), header);
    }
    if (!OneIn(3)) {
        bytes += Id3v1();
    }
    if (OneIn(10)) {
        bytes.resize(Below(static_cast<unsigned>(bytes.size()) + 1));
    }
    return bytes;
}

void RandomCorpus::MakeFolders() {
    std::vector<std::string> all = {"music"};
    folder_.Make("music");
    for (unsigned count = Below(4); count > 0; --count) {
        all.push_back(Pick(all) + "/" + Name() + (OneIn(5) ? ".mp3" : ""));
        folder_.Make(all.back());
    }
    for (unsigned count = 1 + Below(24); count > 0; --count) {
        const std::string path =
            Pick(all) + "/" + Name() + Pick({".mp3", ".MP3", ".Mp3", ".mp3.bak", ".txt"});
        if (!folder_.Exists(path)) {
            folder_.Write(path, File());
        }
    }
    if (OneIn(4)) {
        fs::create_directory_symlink("..", folder_ / (Pick(all) + "/a link"));
    }
    for (unsigned count = 1 + Below(3); count > 0; --count) {
        folders_.push_back(folder_ / Pick(all) + (OneIn(2) ? "/" : ""));
    }
}

void RandomCorpus::MakeSettings() {
    settings_ = DefaultSettings();
    if (folders_.size() == 1 && !OneIn(4)) {
        settings_.Directory = folders_.front();
    } else {
        settings_.Directory = "%MULT%";
        for (std::size_t i = 0; i < folders_.size(); ++i) {
            settings_.Directory += (i > 0 ? "%||%" : "") + folders_[i];
        }
    }
    settings_.OutputFile =
        folder_ / ("list" + Pick({".htm", ".html", ".HTM", ".txt", ".TXT", ".m3u", "", ".xml", ".text"}));
    // Without recursion a folder named *.mp3 ends the walk.
    settings_.Recurse = true;
    settings_.Spanning = static_cast<std::int16_t>(OneIn(2) ? 0 : 1 + Below(9));
    settings_.SizeType = static_cast<std::int16_t>(Below(4));
    settings_.SortOrder = static_cast<std::int16_t>(Below(4));
    settings_.MoveTheArtists = OneIn(2);
    settings_.DocumentType = Pick({"HTML", "XHTML"});
    settings_.DoLinks = OneIn(2);
    settings_.LinkType = static_cast<std::int16_t>(Below(4));
    settings_.Merge =
        static_cast<std::int16_t>(Below(3)); // any other value merges into a column without a name
    settings_.ActiveColumns =
        Pick({"Number|Artist|Album|Title|Duration", "Title|Artist", "Artist|Title|Album|Year|Genre|Mode",
              "Number|Foo|Full Path|Filename|Folder Path", "File Size|MPEG Type|Bitrate|Frequency|Title",
              "number|ARTIST|title", "Filename"});
    settings_.FontHTML = OneIn(2);
    settings_.FontCSS = OneIn(2);
    settings_.ColourHTML = OneIn(2);
    settings_.AltRows = OneIn(2);
    settings_.ErrorWarnings = false;
    settings_.PageTitle = "%C files, %N without tags, %S, %P %L %%";
}

void RandomCorpus::MakeEntities() {
    if (OneIn(5)) {
        return; // no entity file
    }
    entityLines_ = {"# characters", "38\t&amp;", "60\t&lt;", "", "62\t&gt;", "34\t&quot;"};
    if (OneIn(3)) {
        entityLines_.push_back("233\t&eacute;");
        entityLines_.push_back(std::to_string(Below(256)) + "\t[&]");
    }
    if (OneIn(4)) {
        std::swap(entityLines_[1], entityLines_[2]); // an order that escapes escapes
    }
}

} // namespace tunedex::test
