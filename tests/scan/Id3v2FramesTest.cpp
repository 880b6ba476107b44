#include "Id3v2Frames.h"

#include "References.h"
#include "TagBuilder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::BigEndian;
using test::FailingByteSource;
using test::FrameOf;
using test::Synchsafe;
using test::TagOf;
using test::Unsynchronised;
using test::Utf16;

TrackInfo ReadTagOf(const std::string& bytes, LongTextPool* pool = nullptr) {
    FailingByteSource file(bytes);
    const CodePage page(kDefaultCodePage);
    TrackInfo track;
    TagTexts texts(track, page, false, pool);
    const auto header = ParseId3v2Header(
        {reinterpret_cast<const std::uint8_t*>(bytes.data()), std::min<std::size_t>(bytes.size(), 10)});
    EXPECT_TRUE(header && IsReadable(*header));
    ReadId3v2Frames(file, *header, texts);
    return track;
}

std::string TitleFrame(int version, std::string_view title = "Song") {
    return FrameOf(version, version == 2 ? "TT2" : "TIT2", "\0"s + std::string(title));
}

std::string AlbumFrame(int version) {
    return FrameOf(version, version == 2 ? "TAL" : "TALB", "\0Album"s);
}

struct HeaderRow {
    std::string bytes;
    bool present;
    bool readable;
    std::uint64_t tagBytes;
};

TEST(ParseId3v2Header, ReadsVersionAndSize) {
    const HeaderRow rows[] = {
        {"ID3\x03\0\0\0\0\x02\x01"s, true, true, 267},
        {"ID3\x02\0\0\0\0\0\0"s, true, true, 10},
        {"ID3\x02\0\x40\0\0\0\0"s, true, false, 10},
        {"ID3\x02\0\x80\0\0\0\x05"s, true, true, 15},
        {"ID3\x04\0\x10\0\0\0\x05"s, true, true, 25},
        {"ID3\x03\0\x10\0\0\0\x05"s, true, true, 15},
        {"ID3\x04\0\0\x7F\x7F\x7F\x7F"s, true, true, 268435465},
        {"ID3\x04\0\0\0\0\x01\xFF"s, true, true, 521},
        {"ID3\x01\0\0\0\0\0\x05"s, true, false, 15},
        {"ID3\x05\0\0\0\0\0\x05"s, true, false, 15},
        {"ID3\xFF\0\0\0\0\0\x05"s, false, false, 0},
        {"ID3\x03\xFF\0\0\0\0\x05"s, false, false, 0},
        {"ID4\x03\0\0\0\0\0\x05"s, false, false, 0},
        {"ID3\x03\0\0\0\0\0"s, false, false, 0},
    };
    for (const HeaderRow& row : rows) {
        const auto header =
            ParseId3v2Header({reinterpret_cast<const std::uint8_t*>(row.bytes.data()), row.bytes.size()});
        ASSERT_EQ(header.has_value(), row.present) << testing::PrintToString(row.bytes);
        if (header) {
            EXPECT_EQ(IsReadable(*header), row.readable) << testing::PrintToString(row.bytes);
            EXPECT_EQ(header->tagBytes, row.tagBytes) << testing::PrintToString(row.bytes);
        }
    }
}

TEST(ReadId3v2Frames, ReadsTheTenTextsOfEveryVersion) {
    const char* const ids[][2] = {{"TIT2", "TT2"}, {"TPE1", "TP1"}, {"TALB", "TAL"},
                                  {"TYER", "TYE"}, {"TCON", "TCO"}, {"TRCK", "TRK"},
                                  {"TPOS", "TPA"}, {"TPE2", "TP2"}, {"TCOM", "TCM"}};
    for (const int version : {2, 3, 4}) {
        std::string body = FrameOf(version, version == 2 ? "TXX" : "TXXX", "\0x"s);
        int number = 0;
        for (const auto& id : ids) {
            body += FrameOf(version, id[version == 2 ? 1 : 0], "\0text "s + std::to_string(++number));
        }
        body += FrameOf(version, version == 2 ? "COM" : "COMM", "\0eng\0text 10"s);
        const TrackInfo track = ReadTagOf(TagOf(version, body + std::string(20, '\0')));
        EXPECT_EQ(track.Title, "text 1");
        EXPECT_EQ(track.Artist, "text 2");
        EXPECT_EQ(track.Album, "text 3");
        EXPECT_EQ(track.Year, "text 4");
        EXPECT_EQ(track.Genre, "text 5");
        EXPECT_EQ(track.Track, "text 6");
        EXPECT_EQ(track.Disc, "text 7");
        EXPECT_EQ(track.AlbumArtist, "text 8");
        EXPECT_EQ(track.Composer, "text 9");
        EXPECT_EQ(track.Comment, "text 10");
    }
}

struct TextRow {
    std::string content;
    const char* text;
};

TEST(ReadId3v2Frames, DecodesEveryEncoding) {
    const TextRow rows[] = {
        {"\0na\xEFve"s, "naïve"},
        {"\x01\xFF\xFEh\0i\0"s, "hi"},
        {"\x01\xFE\xFF\0h\0i"s, "hi"},
        {"\x01h\0i\0"s, "hi"},
        {"\x01\xFF\xFE\x3D\xD8\x00\xDE\x3D\xD8"s, "😀\uFFFD"},
        {"\x02\0h\0i"s, "hi"},
        {"\x02\0h\0i\0"s, "hi"},
        {"\x03\xC3\xA9\xFF"s, "é\uFFFD"},
        {"\x03one\0two \0"s, "one; two"},
        {"\x04no"s, ""},
        {"\xFFno"s, ""},
        {"\0"s, ""},
        {"\x01\xFF\xFE\0\0"s, ""},
        {"\0  \0 "s, ""},
    };
    for (const int version : {2, 3, 4}) {
        for (const TextRow& row : rows) {
            const TrackInfo track = ReadTagOf(TagOf(
                version, FrameOf(version, version == 2 ? "TT2" : "TIT2", row.content) + AlbumFrame(version)));
            EXPECT_EQ(track.Title, row.text) << version << testing::PrintToString(row.content);
            EXPECT_EQ(track.Album, "Album");
        }
    }
}

TEST(ReadId3v2Frames, MergesRepeatedFramesWithoutDuplicates) {
    const auto artist = [](const std::string& name) { return FrameOf(4, "TPE1", "\x03" + name); };
    EXPECT_EQ(ReadTagOf(TagOf(4, artist("A\0B"s) + artist("B") + artist("C"))).Artist, "A; B; C");
    // A writer may have stored a list as one value.
    EXPECT_EQ(ReadTagOf(TagOf(4, artist("A; B") + artist("B"))).Artist, "A; B");
    EXPECT_EQ(ReadTagOf(TagOf(4, artist("A; Bo") + artist("B"))).Artist, "A; Bo; B");
}

TEST(ReadId3v2Frames, TakesTheYearFromTheDatesInTheirOrder) {
    struct YearRow {
        std::vector<std::pair<const char*, const char*>> frames;
        const char* year;
    };
    const YearRow rows[] = {
        {{{"TDRC", "2001-05-06T07:08"}}, "2001"},
        {{{"TDOR", "1966"}, {"TDRL", "1970-01"}, {"TDRC", "2001"}}, "2001"},
        {{{"TDOR", "1966"}, {"TDRL", "1970-01"}}, "1970"},
        {{{"TDOR", "1966"}}, "1966"},
        {{{"TDRC", "2001"}, {"TYER", "1999"}}, "1999"},
        {{{"TDRC", "2001"}, {"TYER", ""}}, "2001"},
        {{{"TDRC", "99"}, {"TDOR", "1966"}}, "1966"},
        {{{"TDRC", "in 20015"}}, "2001"},
        {{{"TDRC", "200-1"}}, ""},
        {{{"TYER", "ca. 1999"}}, "ca. 1999"},
    };
    for (const YearRow& row : rows) {
        for (const int version : {3, 4}) {
            std::string body;
            for (const auto& [id, text] : row.frames) {
                body += FrameOf(version, id, "\0"s + text);
            }
            EXPECT_EQ(ReadTagOf(TagOf(version, body)).Year, row.year);
        }
    }
    EXPECT_EQ(ReadTagOf(TagOf(4, FrameOf(4, "TDRC", Utf16(u"2014-01-02")))).Year, "2014");
    EXPECT_EQ(ReadTagOf(TagOf(4, FrameOf(4, "TDRC", "\3x\0002015"s))).Year, "2015");
}

TEST(ReadId3v2Frames, TakesTheFirstCommentWithoutADescription) {
    const auto comment = [](const std::string& content) { return FrameOf(3, "COMM", content); };
    EXPECT_EQ(ReadTagOf(TagOf(3, comment("\0engiTunNORM\0 0000"s) + comment("\0eng\0first"s) +
                                     comment("\0deu\0second"s)))
                  .Comment,
              "first");
    EXPECT_EQ(ReadTagOf(TagOf(3, comment("\x01"
                                         "eng\xFF\xFE\0\0\xFF\xFEh\0i\0"s)))
                  .Comment,
              "hi");
    EXPECT_EQ(ReadTagOf(TagOf(3, comment("\x01"
                                         "eng\0\0\xFF\xFEh\0i\0"s)))
                  .Comment,
              "hi");
    EXPECT_EQ(ReadTagOf(TagOf(3, comment("\0\0\0\0\0no language"s))).Comment, "no language");
    EXPECT_EQ(ReadTagOf(TagOf(3, comment("\0eng\0"s) + comment("\0eng\0later"s))).Comment, "later");
    for (const std::string& content : {"\0engdescription"s, "\0en"s, "\0"s, "\0engd\0text"s,
                                       "\x05"
                                       "eng\0text"s}) {
        EXPECT_EQ(ReadTagOf(TagOf(3, comment(content))).Comment, "") << testing::PrintToString(content);
    }
}

TEST(ReadId3v2Frames, SkipsEncryptedAndCompressedFramesAndReadsGroupedOnes) {
    struct FlagRow {
        int version;
        int format;
        std::string content;
        const char* title;
    };
    const FlagRow rows[] = {
        {3, 0x80, "\0\0\0\x05\0Song"s, ""},
        {3, 0x40, "\x01\0Song"s, ""},
        {3, 0x20, "\x07\0Song"s, "Song"},
        {4, 0x08, "\0Song"s, ""},
        {4, 0x04, "\0Song"s, ""},
        {4, 0x40, "\x07\0Song"s, "Song"},
        {4, 0x01, "\0\0\0\x05\0Song"s, "Song"},
        {4, 0x41, "\x07\0\0\0\x05\0Song"s, "Song"},
        {4, 0x02, "\0S\xFF\0ng"s, "Sÿng"},
        {4, 0x03, "\0\0\0\x05\0S\xFF\0ng"s, "Sÿng"},
        {4, 0x02, "\x01\xFF\0\xFES\0\xFF\0\0"s, "Sÿ"},
        {4, 0x02, "\x01\xFF\xFES\0"s, "S"},
        {4, 0x41, "\x07\0\0\0"s, ""},
        {4, 0x01, "\0"s, ""},
    };
    for (const FlagRow& row : rows) {
        const TrackInfo track = ReadTagOf(TagOf(
            row.version, FrameOf(row.version, "TIT2", row.content, row.format) + AlbumFrame(row.version)));
        EXPECT_EQ(track.Title, row.title) << row.version << " " << row.format;
        EXPECT_EQ(track.Album, "Album");
    }
}

TEST(ReadId3v2Frames, UndoesUnsynchronisationOfTheWholeTag) {
    const std::string picture =
        FrameOf(3, "APIC", "\0image/jpeg\0\3\0\xFF\0\xFF\xE0"s + std::string(3000, '\xFF'));
    for (const int version : {2, 3}) {
        const std::string body = (version == 3 ? picture : "") +
                                 FrameOf(version, version == 2 ? "TT2" : "TIT2", Utf16(u"\u00FF")) +
                                 AlbumFrame(version) + std::string(5, '\0');
        const TrackInfo track = ReadTagOf(TagOf(version, Unsynchronised(body), 0x80));
        EXPECT_EQ(track.Title, "ÿ");
        EXPECT_EQ(track.Album, "Album");
    }
    // In 2.4 sizes count the bytes as they are in the file.
    const TrackInfo track =
        ReadTagOf(TagOf(4, FrameOf(4, "TIT2", Unsynchronised(Utf16(u"\u00FF"))) + AlbumFrame(4), 0x80));
    EXPECT_EQ(track.Title, "ÿ");
    EXPECT_EQ(track.Album, "Album");
}

TEST(ReadId3v2Frames, TakesATagAsItIsWhoseBytesCannotBeUnsynchronised) {
    const std::string body = FrameOf(3, "TALB", "\0A\xFF\0"s) + FrameOf(3, "TIT2", Utf16(u"Song"));
    const TrackInfo track = ReadTagOf(TagOf(3, body, 0x80));
    EXPECT_EQ(track.Title, "Song");
    EXPECT_EQ(track.Album, "Aÿ");
}

TEST(ReadId3v2Frames, SkipsExtendedHeadersAlsoOfWrongSizes) {
    struct ExtendedRow {
        int version;
        std::string extended;
    };
    const ExtendedRow rows[] = {
        {3, BigEndian(6) + std::string(6, '\0')},
        {3, BigEndian(10) + "\x80\0"s + BigEndian(20) + "\xAA\xBB\xCC\xDD"},
        {3, BigEndian(10) + std::string(6, '\0')}, // counts itself
        {3, BigEndian(0) + "\0\0\0\0\0\0"s},
        {3, BigEndian(0x7FFFFFFF) + std::string(6, '\0')},
        {3, ""}, // the flag alone
        {4, Synchsafe(6) + "\x01\0"s},
        {4, Synchsafe(12) + "\x01\x20\x05\x01\x02\x03\x04\x05"s},
        {4, Synchsafe(2) + "\x01\0"s}, // does not count itself
        {4, Synchsafe(100000) + "\x01\0"s},
        {4, ""},
    };
    for (const ExtendedRow& row : rows) {
        for (const int flags : {0x40, 0xC0}) {
            std::string body = row.extended + TitleFrame(row.version) + AlbumFrame(row.version);
            if (row.version == 3 && (flags & 0x80) != 0) {
                body = Unsynchronised(body);
            }
            const TrackInfo track = ReadTagOf(TagOf(row.version, body, flags));
            EXPECT_EQ(track.Title, "Song") << row.version << testing::PrintToString(row.extended);
            EXPECT_EQ(track.Album, "Album") << row.version << testing::PrintToString(row.extended);
        }
    }
}

TEST(ReadId3v2Frames, TakesTheFrameSizeThatLeadsToAFrame) {
    const std::string text(300, 'x');
    const std::string content = "\0"s + text;
    for (const int version : {3, 4}) {
        const std::string plain = "TIT2" + BigEndian(301) + "\0\0"s + content;
        const std::string synchsafe = "TIT2" + Synchsafe(301) + "\0\0"s + content;
        for (const std::string& frame : {plain, synchsafe}) {
            for (const std::string& behind : {AlbumFrame(version), std::string(30, '\0'), ""s, "\0\0"s}) {
                const TrackInfo track = ReadTagOf(TagOf(version, frame + behind));
                EXPECT_TRUE(track.Title == text) << version << " " << track.Title.size();
                EXPECT_EQ(track.Album, behind.size() > 30 || behind.starts_with("TALB") ? "Album" : "");
            }
        }
    }
    // 128 to 255 as a plain number is no synchsafe one.
    const std::string short200 = "TIT2" + BigEndian(200) + "\0\0"s + "\0"s + std::string(199, 'y');
    EXPECT_EQ(ReadTagOf(TagOf(4, short200 + AlbumFrame(4))).Title, std::string(199, 'y'));
    EXPECT_EQ(ReadTagOf(TagOf(4, short200 + AlbumFrame(4))).Album, "Album");
}

TEST(ReadId3v2Frames, TakesNeitherCapitalsNorZerosInsideAFrameForItsEnd) {
    // Both sizes of this frame are possible: 256 and 512, or 32768 and 131072.
    const std::string capitals(511, 'X');
    const std::string frame = FrameOf(3, "TIT2", "\0"s + capitals);
    for (const std::string& behind : {""s, std::string(20, '\0'), AlbumFrame(3)}) {
        EXPECT_EQ(ReadTagOf(TagOf(3, frame + behind)).Title, capitals);
    }
    const std::string zeros = "\0x"s + std::string(131070, '\0');
    const std::string tag = TagOf(4, "TIT2" + BigEndian(131072) + "\0\0"s + zeros + AlbumFrame(4));
    EXPECT_EQ(ReadTagOf(tag).Title, "x");
    EXPECT_EQ(ReadTagOf(tag).Album, "Album");
}

TEST(ReadId3v2Frames, ReadsFramesOfOneVersionInATagOfAnother) {
    for (const std::string& id : {"TT2\0"s, "TT2 "s}) {
        const TrackInfo track = ReadTagOf(TagOf(3, FrameOf(3, id, "\0Song"s) + AlbumFrame(3)));
        EXPECT_EQ(track.Title, "Song");
        EXPECT_EQ(track.Album, "Album");
    }
    EXPECT_EQ(ReadTagOf(TagOf(3, FrameOf(3, "TDRC", "\0002005"s))).Year, "2005");
    EXPECT_EQ(ReadTagOf(TagOf(4, FrameOf(4, "TYER", "\0002005"s))).Year, "2005");
}

TEST(ReadId3v2Frames, ContinuesBehindEmptyAndUnknownFrames) {
    for (const int version : {3, 4}) {
        const std::string body = FrameOf(version, "TIT2", "") + FrameOf(version, "zz#\x80", "skipped") +
                                 FrameOf(version, "TPE1", "\0"s) + TitleFrame(version) + AlbumFrame(version);
        const TrackInfo track = ReadTagOf(TagOf(version, body));
        EXPECT_EQ(track.Title, "Song");
        EXPECT_EQ(track.Artist, "");
        EXPECT_EQ(track.Album, "Album");
    }
}

TEST(ReadId3v2Frames, EndsAtPaddingAndAtTheEndOfTheTag) {
    EXPECT_EQ(ReadTagOf(TagOf(3, AlbumFrame(3) + std::string(10, '\0') + TitleFrame(3))).Title, "");
    EXPECT_EQ(ReadTagOf(TagOf(3, AlbumFrame(3)) + TitleFrame(3)).Title, "");
    EXPECT_EQ(ReadTagOf(TagOf(3, AlbumFrame(3)) + TitleFrame(3)).Album, "Album");
    EXPECT_EQ(ReadTagOf(TagOf(3, "")).Title, "");
    EXPECT_EQ(ReadTagOf(TagOf(3, "TIT2\0\0"s)).Title, "");
}

TEST(ReadId3v2Frames, TakesTheFirstValueOfAFrameThatTheTagOrTheFileCutsOff) {
    const std::string frame = "TIT2" + BigEndian(1000) + "\0\0\0So\0ng"s;
    EXPECT_EQ(ReadTagOf(TagOf(3, AlbumFrame(3) + frame) + std::string(2000, 'z')).Title, "So");
    const std::string longer = "TIT2" + BigEndian(100000) + "\0\0\0So\0"s + std::string(900, 'y');
    EXPECT_EQ(ReadTagOf(TagOf(3, AlbumFrame(3) + longer) + std::string(2000, 'z')).Title, "So");
    std::string whole = TagOf(3, AlbumFrame(3) + TitleFrame(3, "Long song"));
    whole.resize(whole.size() - 5);
    EXPECT_EQ(ReadTagOf(whole).Title, "Long");
    const TrackInfo unused =
        ReadTagOf(TagOf(3, AlbumFrame(3) + "PRIV" + BigEndian(1000) + "\0\0"s + TitleFrame(3)));
    EXPECT_EQ(unused.Title, "");
    EXPECT_EQ(unused.Album, "Album");
}

TEST(ReadId3v2Frames, ReadsTheWholeFramesOfATagCutOffAtAnyByte) {
    const std::string title = TitleFrame(4);
    const std::string tag = TagOf(4, AlbumFrame(4) + title + std::string(10, '\0'));
    for (std::size_t length = 10; length <= tag.size(); ++length) {
        const TrackInfo track = ReadTagOf(tag.substr(0, length));
        EXPECT_TRUE("Album"s.starts_with(track.Album)) << length;
        EXPECT_EQ(track.Title, length >= tag.size() - 10 ? "Song" : track.Title) << length;
        EXPECT_TRUE("Song"s.starts_with(track.Title)) << length;
    }
}

// Large contents are read in pieces and lose runs of NULs; no boundary may show.
TEST(ReadId3v2Frames, ReadsContentsOfAnyLengthInEveryEncoding) {
    for (const std::size_t length : {500U, 511U, 512U, 513U, 65534U, 65535U, 65536U, 65537U, 200001U}) {
        for (const std::size_t nuls : {1U, 2U, 7U, 8U, 9U, 10U, 70000U}) {
            const std::string first(length, 'a');
            std::string bytes = "\0"s + first + std::string(nuls, '\0') + "b" + std::string(nuls, '\0');
            EXPECT_TRUE(ReadTagOf(TagOf(3, FrameOf(3, "TIT2", bytes))).Title == first + "; b")
                << length << " " << nuls;
            const std::u16string text = std::u16string(length / 2, u'a') + std::u16string(nuls, u'\0') + u"b";
            EXPECT_TRUE(ReadTagOf(TagOf(3, FrameOf(3, "TIT2", Utf16(text)))).Title ==
                        std::string(length / 2, 'a') + "; b")
                << length << " " << nuls;
        }
    }
    const std::string comment = "\0\0\0\0\0"s + std::string(600, '\0') + std::string(600, 'c');
    EXPECT_EQ(ReadTagOf(TagOf(3, FrameOf(3, "COMM", comment))).Comment, std::string(600, 'c'));
}

TEST(ReadId3v2Frames, UndoesUnsynchronisationOfALargeFrame) {
    std::string text;
    while (text.size() < 150000) {
        text += "abc\xFF";
    }
    std::string decoded;
    for (const char byte : text) {
        decoded += byte == '\xFF' ? "ÿ"s : std::string(1, byte);
    }
    const std::string frame = FrameOf(4, "TIT2", Unsynchronised("\0"s + text), 0x02);
    EXPECT_TRUE(ReadTagOf(TagOf(4, frame + AlbumFrame(4))).Title == decoded);
    EXPECT_EQ(ReadTagOf(TagOf(4, frame + AlbumFrame(4))).Album, "Album");
    const std::string wrong = FrameOf(4, "TIT2", "\0"s + text + "\xFF\xE0", 0x02);
    EXPECT_TRUE(ReadTagOf(TagOf(4, wrong + AlbumFrame(4))).Title == decoded + "ÿà");
    EXPECT_EQ(ReadTagOf(TagOf(4, wrong + AlbumFrame(4))).Album, "Album");
}

TEST(ReadId3v2Frames, SharesLongTextsInThePool) {
    LongTextPool pool;
    const std::string text(5000, 't');
    const TrackInfo track =
        ReadTagOf(TagOf(3, TitleFrame(3, text) + FrameOf(3, "TPE1", "\0"s + text)), &pool);
    ASSERT_EQ(track.LongFields.size(), 2U);
    EXPECT_EQ(track.LongFields[0].text, track.LongFields[1].text);
    EXPECT_EQ(track.LongFields[0].text->View(), text);
}

// Counts the bytes read.
class CountingSource final : public ByteSource {
  public:
    explicit CountingSource(std::string bytes) : source_(std::move(bytes)) {}
    std::uint64_t Size() const override { return source_.Size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override {
        EXPECT_LE(offset, Size());
        const std::size_t got = source_.Read(offset, buffer);
        bytes_ += got;
        return got;
    }
    std::uint64_t Bytes() const { return bytes_; }

  private:
    FailingByteSource source_;
    std::uint64_t bytes_ = 0;
};

TEST(ReadId3v2Frames, ReadsNoPictures) {
    const CodePage page(kDefaultCodePage);
    for (const int version : {2, 3, 4}) {
        const std::string picture =
            FrameOf(version, version == 2 ? "PIC" : "APIC", std::string(500000, '\xFF'));
        const std::string tag = TagOf(version, picture + TitleFrame(version));
        CountingSource file(tag);
        TrackInfo track;
        TagTexts texts(track, page, false, nullptr);
        const auto header = ParseId3v2Header({reinterpret_cast<const std::uint8_t*>(tag.data()), 10});
        ReadId3v2Frames(file, *header, texts);
        EXPECT_EQ(track.Title, "Song");
        EXPECT_LT(file.Bytes(), 200U);
    }
}

TEST(ReadId3v2Frames, KeepsWhatPrecedesAFailedRead) {
    const CodePage page(kDefaultCodePage);
    const std::string tag = TagOf(3, AlbumFrame(3) + TitleFrame(3));
    for (int failAt = 1; failAt <= 4; ++failAt) {
        FailingByteSource file(tag, failAt);
        TrackInfo track;
        TagTexts texts(track, page, false, nullptr);
        const auto header = ParseId3v2Header({reinterpret_cast<const std::uint8_t*>(tag.data()), 10});
        EXPECT_THROW(ReadId3v2Frames(file, *header, texts), RunTimeError);
        EXPECT_EQ(track.Album, failAt > 2 ? "Album" : "") << failAt;
        EXPECT_EQ(track.Title, "");
    }
}

} // namespace
} // namespace tunedex
