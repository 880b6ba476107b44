// tagger: copies MP3 frames without tags into a new file and adds ID3 tags.

#include "Id3Writer.h"
#include "Numbers.h"

#include <array>
#include <cstdint>
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using tunedex::Id3TextEncoding;
using tunedex::Id3v1Tag;
using tunedex::Id3v2Tag;
using tunedex::Id3v2Version;

constexpr std::string_view kUsage =
    R"USAGE(usage: tagger FRAMES OUTPUT [OPTION...]
Writes the MP3 frames of the file FRAMES with ID3 tags to OUTPUT. Texts are UTF-8.

  --v1                 an ID3v1 tag at the end
  --v2 2.2|2.3|2.4     an ID3v2 tag of this version in front
  --title TEXT         --artist TEXT   --album TEXT   --year TEXT
  --track NUMBER       for both tags
  --disc TEXT          ID3v2 only
  --comment TEXT       ID3v1 only
  --genre TEXT         ID3v2 only, unchanged: "Rock", "(17)"
  --genre-number N     ID3v1 only (255: none)
  --v1-title TEXT, --v1-artist TEXT, --v1-album TEXT
                       override the text in the ID3v1 tag
  --v1-blanks          pad the ID3v1 fields with blanks instead of NULs
  --encoding windows-1252|utf-16|utf-16be|utf-8
                       encoding of ID3v2 texts (default: windows-1252)
  --picture FILE       a PNG for the ID3v2 tag
  --padding BYTES      zero bytes after the last ID3v2 frame (default: 0)
  --unsynchronised     apply unsynchronisation to the ID3v2 tag
  --plain-frame-sizes  ID3v2.4 frame sizes that are not synchsafe
  --claimed-size N     override the size in the ID3v2 header
)USAGE";

struct Options {
    std::vector<std::string> files;
    Id3v1Tag v1;
    Id3v2Tag v2;
    bool hasV1 = false;
    bool hasV2 = false;
    std::optional<std::string> v1Title;
    std::optional<std::string> v1Artist;
    std::optional<std::string> v1Album;
};

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    if (!file || !(bytes << file.rdbuf())) {
        throw std::runtime_error("cannot read " + path);
    }
    return bytes.str();
}

std::uint32_t Number(const std::string& text, std::uint32_t most) {
    const double number = tunedex::RequireNumber(text);
    if (number < 0 || number > most) {
        throw std::invalid_argument(text + " is not a number from 0 to " + std::to_string(most));
    }
    return static_cast<std::uint32_t>(number);
}

template <typename Value> Value Choice(const std::string& text, const std::map<std::string, Value>& choices) {
    const auto found = choices.find(text);
    if (found == choices.end()) {
        throw std::invalid_argument("\"" + text + "\" is not a valid value");
    }
    return found->second;
}

using Flag = std::function<void(Options&)>;
using Setter = std::function<void(Options&, const std::string&)>;

const std::map<std::string, Flag>& Flags() {
    static const std::map<std::string, Flag> flags = {
        {"--v1", [](Options& o) { o.hasV1 = true; }},
        {"--v1-blanks", [](Options& o) { o.v1.fill = ' '; }},
        {"--unsynchronised", [](Options& o) { o.v2.unsynchronised = true; }},
        {"--plain-frame-sizes", [](Options& o) { o.v2.plainFrameSizes = true; }},
    };
    return flags;
}

// Sets a text in both tags.
Setter Both(std::string Id3v1Tag::*field, const char* frame) {
    return [field, frame](Options& options, const std::string& text) {
        options.v1.*field = text;
        options.v2.frames.push_back({frame, text});
    };
}

const std::map<std::string, Setter>& Setters() {
    static const std::map<std::string, Setter> setters = {
        {"--v2",
         [](Options& o, const std::string& text) {
             o.hasV2 = true;
             o.v2.version = Choice<Id3v2Version>(
                 text, {{"2.2", Id3v2Version::V22}, {"2.3", Id3v2Version::V23}, {"2.4", Id3v2Version::V24}});
         }},
        {"--title", Both(&Id3v1Tag::title, "TIT2")},
        {"--artist", Both(&Id3v1Tag::artist, "TPE1")},
        {"--album", Both(&Id3v1Tag::album, "TALB")},
        {"--year", Both(&Id3v1Tag::year, "TYER")},
        {"--track",
         [](Options& o, const std::string& text) {
             o.v1.track = static_cast<std::uint8_t>(Number(text, 255));
             o.v2.frames.push_back({"TRCK", text});
         }},
        {"--disc",
         [](Options& o, const std::string& text) {
             o.v2.frames.push_back({"TPOS", text});
         }},
        {"--comment", [](Options& o, const std::string& text) { o.v1.comment = text; }},
        {"--genre",
         [](Options& o, const std::string& text) {
             o.v2.frames.push_back({"TCON", text});
         }},
        {"--genre-number",
         [](Options& o, const std::string& text) {
             o.v1.genre = static_cast<std::uint8_t>(Number(text, 255));
         }},
        {"--v1-title", [](Options& o, const std::string& text) { o.v1Title = text; }},
        {"--v1-artist", [](Options& o, const std::string& text) { o.v1Artist = text; }},
        {"--v1-album", [](Options& o, const std::string& text) { o.v1Album = text; }},
        {"--encoding",
         [](Options& o, const std::string& text) {
             o.v2.encoding = Choice<Id3TextEncoding>(text, {{"windows-1252", Id3TextEncoding::Windows1252},
                                                            {"utf-16", Id3TextEncoding::Utf16},
                                                            {"utf-16be", Id3TextEncoding::Utf16BigEndian},
                                                            {"utf-8", Id3TextEncoding::Utf8}});
         }},
        {"--picture", [](Options& o, const std::string& text) { o.v2.picture = ReadFile(text); }},
        {"--padding", [](Options& o, const std::string& text) { o.v2.padding = Number(text, 1U << 20U); }},
        {"--claimed-size",
         [](Options& o, const std::string& text) { o.v2.claimedSize = Number(text, (1U << 28U) - 1); }},
    };
    return setters;
}

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (const auto flag = Flags().find(argument); flag != Flags().end()) {
            flag->second(options);
        } else if (const auto setter = Setters().find(argument); setter != Setters().end()) {
            if (++i == arguments.size()) {
                throw std::invalid_argument(argument + " needs a value");
            }
            setter->second(options, arguments[i]);
        } else if (argument.rfind("--", 0) == 0) {
            throw std::invalid_argument("unknown option " + argument);
        } else {
            options.files.push_back(argument);
        }
    }
    if (options.files.size() != 2) {
        throw std::invalid_argument("expected two files: the frames and the output");
    }
    options.v1.title = options.v1Title.value_or(options.v1.title);
    options.v1.artist = options.v1Artist.value_or(options.v1.artist);
    options.v1.album = options.v1Album.value_or(options.v1.album);
    return options;
}

void WriteTagged(const Options& options) {
    std::string bytes;
    if (options.hasV2) {
        const tunedex::TagBytes tag = tunedex::MakeId3v2(options.v2);
        bytes = tag.bytes;
        bytes.append(tag.zeros, '\0');
    }
    bytes += ReadFile(options.files[0]);
    if (options.hasV1) {
        bytes += tunedex::MakeId3v1(options.v1);
    }
    std::ofstream file(options.files[1], std::ios::binary | std::ios::trunc);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        throw std::runtime_error("cannot write " + options.files[1]);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        if (arguments.size() == 1 && arguments[0] == "--help") {
            std::cout << kUsage;
            return 0;
        }
        WriteTagged(ParseOptions(arguments));
    } catch (const std::invalid_argument& error) {
        std::cerr << "tagger: " << error.what() << "\nTry tagger --help.\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "tagger: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
