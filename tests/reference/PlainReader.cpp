#include "PlainReader.h"

#include "Genres.h"
#include "Text.h"

#include <cmath>

namespace tunedex::plain {

namespace {

constexpr int kOverflow = 6;
constexpr int kDivisionByZero = 11;
constexpr int kInputPastEnd = 62;

struct Failure {
    int number;
};

// Positions count from 1.
unsigned ByteAt(const std::string& bytes, std::size_t position) {
    if (position > bytes.size()) {
        throw Failure{kInputPastEnd};
    }
    return static_cast<unsigned char>(bytes[position - 1]);
}

std::string TextAt(const std::string& bytes, std::size_t position, std::size_t length) {
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        text += static_cast<char>(ByteAt(bytes, position + i));
    }
    return text;
}

std::string Without(const std::string& text, char unwanted) {
    std::string result;
    for (const char c : text) {
        if (c != unwanted) {
            result += c;
        }
    }
    return result;
}

std::string RightTrimmed(std::string text) {
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

std::string Moved(const std::string& artist, bool moveTheArtists) {
    std::string start = artist.substr(0, 4);
    for (char& c : start) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
    }
    return moveTheArtists && start == "THE " ? artist.substr(4) + ", The" : artist;
}

std::string BitsOf(unsigned byte) {
    std::string bits;
    for (int bit = 7; bit >= 0; --bit) {
        bits += ((byte >> static_cast<unsigned>(bit)) & 1U) != 0 ? '1' : '0';
    }
    return bits;
}

int Number(const std::string& bits) {
    int value = 0;
    for (const char bit : bits) {
        value = value * 2 + (bit - '0');
    }
    return value;
}

std::string Version(const std::string& bits) {
    const std::string field = bits.substr(11, 2);
    return field == "00" ? "2.5" : field == "10" ? "2.0" : field == "11" ? "1.0" : "";
}

int Layer(const std::string& bits) {
    const std::string field = bits.substr(13, 2);
    return field == "01" ? 3 : field == "10" ? 2 : field == "11" ? 1 : 0;
}

int Frequency(const std::string& bits) {
    const std::string field = bits.substr(20, 2);
    const int whole = field == "00" ? 44100 : field == "01" ? 48000 : field == "10" ? 32000 : 0;
    const std::string version = Version(bits);
    return version == "1.0" ? whole : version == "2.0" ? whole / 2 : whole / 4;
}

int Bitrate(const std::string& bits) {
    // Columns: version 1.0 layer III, layer II, layer I, version 2.0 layer III, version 2.5.
    static const int table[16][5] = {
        {128, 128, 128, 128, 128}, {32, 32, 32, 8, 8},        {40, 48, 64, 128, 16},
        {48, 56, 96, 24, 24},      {56, 64, 128, 16, 32},     {64, 80, 160, 64, 64},
        {80, 96, 192, 80, 80},     {96, 112, 224, 56, 56},    {112, 128, 256, 64, 64},
        {128, 160, 288, 128, 128}, {160, 192, 320, 160, 160}, {192, 224, 352, 112, 112},
        {224, 256, 384, 128, 128}, {256, 320, 416, 256, 256}, {320, 384, 448, 320, 320},
        {128, 128, 128, 128, 128}};
    const std::string version = Version(bits);
    const int layer = Layer(bits);
    int column = 3;
    if (version == "1.0" && layer == 3) {
        column = 0;
    } else if (layer == 2) {
        column = 1;
    } else if (layer == 1) {
        column = 2;
    }
    if (version == "2.5") {
        column = 4;
    }
    return table[Number(bits.substr(16, 4))][column];
}

double HalfToEven(double value) {
    const double below = std::floor(value);
    if (value - below == 0.5) {
        return std::fmod(below, 2) == 0 ? below : below + 1;
    }
    return std::floor(value + 0.5);
}

Header Search(const std::string& bytes, std::size_t position) {
    Header header;
    while (true) {
        unsigned b1 = 0;
        while (b1 != 255) {
            b1 = ByteAt(bytes, position);
            ++position;
        }
        const unsigned b2 = ByteAt(bytes, position);
        if (b2 < 225) {
            continue;
        }
        ++position;
        const unsigned b3 = ByteAt(bytes, position);
        if (b3 >= 236) {
            --position;
            continue;
        }
        ++position;
        const unsigned b4 = ByteAt(bytes, position);
        position -= 4;
        header.offset = position;
        const std::size_t xing = bytes.substr(header.offset, 1400).find("Xing");
        header.vbr = xing != std::string::npos;
        if (header.vbr) {
            const std::string count = TextAt(bytes, header.offset + xing + 1 + 8, 8);
            header.frames = 0;
            for (std::size_t i = 0; i < 4; ++i) {
                header.frames = header.frames * 256 + static_cast<unsigned char>(count[i]);
            }
        }
        header.bits = BitsOf(b1) + BitsOf(b2) + BitsOf(b3) + BitsOf(b4);
        const bool rejected = Version(header.bits).empty() || Layer(header.bits) == 0 ||
                              Frequency(header.bits) == 0 ||
                              (!header.vbr && header.bits.substr(16, 4) == "1111");
        if (!rejected) {
            return header;
        }
        position += 2;
    }
}

void WalkFrames(const std::string& bytes, std::size_t searchPosition, bool moveTheArtists, TrackInfo& track) {
    std::size_t position = 11;
    do {
        const std::string id = TextAt(bytes, position, 4);
        if (id.find('\0') != std::string::npos) {
            return;
        }
        std::size_t size = ByteAt(bytes, position + 4) & 127U;
        for (std::size_t i = 5; i <= 7; ++i) {
            size = size * 256 + ByteAt(bytes, position + i);
        }
        if (size > 0) {
            ByteAt(bytes, position + 10 + size - 1); // raises if the frame extends beyond the file
        }
        const std::string text = DecodeWindows1252(Without(TextAt(bytes, position + 10, size), '\0'));
        if (id == "TIT2") {
            track.Title = text.empty() ? "Unknown Title" : text;
        } else if (id == "TPE1") {
            track.Artist = Moved(text.empty() ? "Unknown Artist" : text, moveTheArtists);
        } else if (id == "TALB") {
            track.Album = text;
        } else if (id == "TYER") {
            track.Year = text;
        } else if (id == "TCON") {
            track.Genre = text;
        }
        position += 10 + size;
    } while (position < searchPosition);
}

} // namespace

Header FindHeader(const std::string& bytes, std::size_t position) {
    try {
        return Search(bytes, position);
    } catch (const Failure& failure) {
        Header none;
        none.error = failure.number;
        return none;
    }
}

bool ReadId3v1(const std::string& bytes, bool moveTheArtists, TrackInfo& track) {
    if (bytes.size() < 128) {
        return false;
    }
    const std::string tag = bytes.substr(bytes.size() - 128);
    if (tag.substr(0, 3) != "TAG") {
        return false;
    }
    const auto field = [&](std::size_t from, std::size_t width) {
        return DecodeWindows1252(Without(RightTrimmed(tag.substr(from - 1, width)), '\0'));
    };
    const std::string artist = field(34, 30);
    const std::string title = field(4, 30);
    track.Artist = Moved(artist.empty() ? "Unknown Artist" : artist, moveTheArtists);
    track.Title = title.empty() ? "Unknown Title" : title;
    track.Album = field(64, 30);
    track.Year = field(94, 4);
    track.Genre = GenreName(static_cast<unsigned char>(tag[127]));
    return true;
}

std::size_t Id3v2SearchPosition(const std::string& bytes) {
    try {
        if (TextAt(bytes, 1, 3) != "ID3") {
            return 1;
        }
        return ByteAt(bytes, 10) + (ByteAt(bytes, 9) & 127U) * 128 + (ByteAt(bytes, 8) & 127U) * 16384 +
               (ByteAt(bytes, 7) & 127U) * 2097152 + 10;
    } catch (const Failure&) {
        return 1;
    }
}

void ReadId3v2(const std::string& bytes, bool moveTheArtists, TrackInfo& track) {
    try {
        WalkFrames(bytes, Id3v2SearchPosition(bytes), moveTheArtists, track);
    } catch (const Failure&) {
        return; // fields read so far are kept
    }
}

Reading ReadTrack(const std::string& bytes, const std::string& fullPath, bool moveTheArtists) {
    Reading reading;
    TrackInfo& track = reading.track;
    track.FullPath = fullPath;
    track.FileSize = static_cast<std::int32_t>(bytes.size());
    const std::size_t position = Id3v2SearchPosition(bytes);
    const bool id3v2 = position > 1;
    const bool id3v1 = ReadId3v1(bytes, moveTheArtists, track);
    if (id3v2) {
        ReadId3v2(bytes, moveTheArtists, track);
        track.TagType = 2;
    } else if (id3v1) {
        track.TagType = 1;
    } else {
        track.Artist = fullPath;
        track.Title = "No ID3 Tags!";
        track.TagType = 0;
    }

    const Header header = FindHeader(bytes, position);
    if (header.error != 0) {
        reading.error = header.error;
        return reading;
    }
    const double size = static_cast<double>(bytes.size());
    double bitrate = Bitrate(header.bits);
    if (header.vbr) {
        if (header.frames == 0) {
            reading.error = kDivisionByZero;
            return reading;
        }
        bitrate = HalfToEven(size * Frequency(header.bits) / (static_cast<double>(header.frames) * 144000));
    }
    if (size * 8 > 2147483647) {
        reading.error = kOverflow;
        return reading;
    }
    if (bitrate == 0) {
        reading.error = kDivisionByZero;
        return reading;
    }
    track.Seconds = static_cast<std::int32_t>(std::floor(size * 8 / bitrate / 1000));
    const std::string seconds = std::to_string(track.Seconds % 60);
    track.Bitrate = std::to_string(static_cast<std::int64_t>(bitrate));
    track.Frequency = std::to_string(Frequency(header.bits));
    const std::string mode = header.bits.substr(24, 2);
    track.Mode = mode == "00"   ? "Stereo"
                 : mode == "01" ? "Joint Stereo"
                 : mode == "10" ? "Dual Channel"
                                : "Mono";
    track.MpegType =
        Version(header.bits) + " " + std::string(static_cast<std::size_t>(Layer(header.bits)), 'I');
    track.Duration = std::to_string(track.Seconds / 60) + ":" + (seconds.size() < 2 ? "0" : "") + seconds;
    return reading;
}

} // namespace tunedex::plain
