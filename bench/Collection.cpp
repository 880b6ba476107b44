#include "Collection.h"

#include "Id3Writer.h"
#include "Numbers.h"

#include <array>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::array<std::string_view, 64> kWords = {
    "Amber",  "Ångström", "Autumn",  "Avenue", "Bitter",  "Blue",   "Bridge",   "Café",
    "Candle", "Carousel", "Cold",    "Cœur",   "Copper",  "Dancer", "Daylight", "Distant",
    "Dust",   "Echo",     "Élan",    "Empty",  "Evening", "Fever",  "Field",    "Fire",
    "Garden", "Ghost",    "Glass",   "Golden", "Harbour", "Heart",  "Hollow",   "Iron",
    "Jardin", "June",     "Lantern", "Letter", "Mirror",  "Motor",  "Night",    "November",
    "Ocean",  "Öland",    "Paper",   "Quiet",  "Radio",   "Rain",   "River",    "Roman",
    "Satin",  "Shadow",   "Silver",  "Smoke",  "Spring",  "Stone",  "Summer",   "Thunder",
    "Träume", "Velvet",   "Violet",  "Wander", "Water",   "White",  "Winter",   "Ypsilon"};

struct GenreChoice {
    std::string_view name;
    std::uint8_t number;
};
constexpr std::array<GenreChoice, 8> kGenres = {{{"Blues", 0},
                                                 {"Jazz", 8},
                                                 {"Metal", 9},
                                                 {"Pop", 13},
                                                 {"Rock", 17},
                                                 {"Ambient", 26},
                                                 {"Classical", 32},
                                                 {"Folk", 80}}};

constexpr std::uint64_t kMegabyte = 1'000'000;
// MPEG-1 Layer III, 44,100 Hz, joint stereo, 128 kbit/s, without padding.
constexpr std::string_view kFrameHeader = "\xFF\xFB\x90\x64";
constexpr std::size_t kFrameSize = 417;
constexpr std::size_t kFirstFrames = 3;
constexpr std::size_t kXingOffset = 36; // after the side information of a stereo frame

std::string BigEndian(std::uint64_t value) {
    std::string bytes;
    for (unsigned shift = 32; shift > 0; shift -= 8) {
        bytes += static_cast<char>((value >> (shift - 8)) & 0xFFU);
    }
    return bytes;
}

} // namespace

Collection::Collection(const CollectionOptions& options) : options_(options), state_(options.seed) {}

// SplitMix64: short, and portable, unlike the distributions of the standard library.
std::uint64_t Collection::Random() {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t value = state_;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31U);
}

std::uint64_t Collection::Between(std::uint64_t least, std::uint64_t most) {
    return least + Random() % (most - least + 1);
}

bool Collection::Percent(unsigned share) {
    return Random() % 100 < share;
}

std::string Collection::Words(std::size_t least, std::size_t most) {
    std::string text;
    for (std::uint64_t left = Between(least, most); left > 0; --left) {
        text += kWords[Random() % kWords.size()];
        text += left > 1 ? " " : "";
    }
    return text;
}

void Collection::StartAlbum() {
    if (albumsLeft_ == 0) {
        ++artists_;
        albumsLeft_ = static_cast<unsigned>(Between(1, 5));
        artist_ = (Percent(25) ? "The " : "") + Words(1, 2);
        // Folder names must be unique; artist names are not.
        artistFolder_ = artist_ + " " + std::to_string(artists_);
    }
    --albumsLeft_;
    album_ = Words(1, 4);
    year_ = std::to_string(Between(1960, 2025));
    genre_ = kGenres[Random() % kGenres.size()].name;
    albumFolder_ = artistFolder_ + "/" + year_ + " - " + album_ + " " + std::to_string(albumsLeft_ + 1);
    tracksLeft_ = static_cast<unsigned>(Between(8, 16));
    track_ = 0;
}

// Returns the size of the tag in bytes.
std::size_t Collection::AddTagInFront(CollectionFile& file, const std::string& title) {
    Id3v2Tag tag;
    tag.frames = {{"TIT2", title}, {"TPE1", artist_}, {"TALB", album_},
                  {"TYER", year_}, {"TCON", genre_},  {"TRCK", std::to_string(track_)}};
    tag.padding = Between(0, 2048);
    if (Percent(options_.coverPercent)) {
        tag.picture = "\x89PNG\r\n\x1a\n";
        tag.pictureZeros = Between(20, 400) * 1000;
    }
    TagBytes bytes = MakeId3v2(tag);
    const std::size_t size = bytes.Size();
    file.parts.push_back({0, std::move(bytes.bytes)});
    return size;
}

void Collection::AddFrames(CollectionFile& file, std::size_t offset) {
    std::string frames;
    const bool vbr = Percent(options_.vbrPercent);
    for (std::size_t i = 0; i < kFirstFrames; ++i) {
        std::string frame(kFrameHeader);
        frame.resize(kFrameSize, '\0');
        if (vbr && i == 0) {
            // The number of frames makes the bitrate 128 to 256 kbit/s.
            const std::uint64_t sizes = Between(kFrameSize, 2 * kFrameSize);
            frame.replace(kXingOffset, 16,
                          "Xing" + BigEndian(3) + BigEndian((file.size - offset) / sizes) +
                              BigEndian(file.size - offset));
        }
        frames += frame;
    }
    // Adjacent parts are merged: one write instead of two.
    if (!file.parts.empty() && file.parts.back().bytes.size() == offset) {
        file.parts.back().bytes += frames;
    } else {
        file.parts.push_back({offset, frames});
    }
}

CollectionFile Collection::Next() {
    if (tracksLeft_ == 0) {
        StartAlbum();
    }
    --tracksLeft_;
    ++track_;
    ++made_;

    const std::string title = Words(1, 5);
    CollectionFile file;
    file.folder = albumFolder_;
    file.name = PadNumber(track_, 2) + " " + title + ".mp3";
    file.size = Between(3 * kMegabyte, 8 * kMegabyte);

    const bool tagged = !Percent(options_.untaggedPercent);
    const std::uint64_t kind = Random() % 10; // 0: ID3v1 only; 1 and 2: ID3v2 only; others: both
    std::size_t audio = 0;
    if (tagged && kind != 0) {
        audio = AddTagInFront(file, title);
    }
    AddFrames(file, audio);
    if (tagged && kind != 1 && kind != 2) {
        Id3v1Tag tag{title, artist_, album_, year_, "", static_cast<std::uint8_t>(track_), 255, '\0'};
        for (const GenreChoice& genre : kGenres) {
            tag.genre = genre.name == genre_ ? genre.number : tag.genre;
        }
        const std::string bytes = MakeId3v1(tag);
        file.parts.push_back({file.size - bytes.size(), bytes});
    }
    return file;
}

} // namespace tunedex
