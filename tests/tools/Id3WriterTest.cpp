#include "Id3Writer.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

using namespace std::string_literals;

namespace tunedex {
namespace {

Id3v2Tag TitleTag(const std::string& title) {
    Id3v2Tag tag;
    tag.frames = {{"TIT2", title}};
    return tag;
}

TEST(Id3v1Tags, HaveTheirFieldsAtFixedOffsets) {
    Id3v1Tag tag;
    tag.title = "Où";
    tag.artist = "An artist whose name is longer than thirty letters";
    tag.album = "桜";
    tag.year = "19991";
    tag.comment = "A comment of more than 28 bytes, too";
    tag.track = 7;
    tag.genre = 17;
    const std::string expected = "TAG" + "O\xF9"s + std::string(28, '\0') + "An artist whose name is longer" +
                                 "?" + std::string(29, '\0') + "1999" + "A comment of more than 28 by" +
                                 "\0\x07\x11"s;
    EXPECT_EQ(MakeId3v1(tag), expected);
    EXPECT_EQ(expected.size(), 128U);
}

TEST(Id3v1Tags, HaveAThirtyByteCommentWithoutATrack) {
    Id3v1Tag tag;
    tag.comment = std::string(40, 'c');
    tag.fill = ' ';
    EXPECT_EQ(MakeId3v1(tag), "TAG" + std::string(94, ' ') + std::string(30, 'c') + "\xFF");
}

struct WrittenTag {
    const char* name;
    Id3v2Tag tag;
    std::string bytes;
    std::size_t zeros;
};

void PrintTo(const WrittenTag& row, std::ostream* out) {
    *out << row.name;
}

std::vector<WrittenTag> WrittenTags() {
    std::vector<WrittenTag> rows;
    const auto add = [&rows](const char* name, const Id3v2Tag& tag, const std::string& bytes,
                             std::size_t zeros = 0) {
        rows.push_back({name, tag, bytes, zeros});
    };
    Id3v2Tag tag = TitleTag("Où");
    add("Windows1252", tag, "ID3\3\0\0\0\0\0\x0DTIT2\0\0\0\3\0\0\0O\xF9"s);
    tag.padding = 300;
    add("PaddingIsCountedButNotWritten", tag, "ID3\3\0\0\0\0\x02\x39TIT2\0\0\0\3\0\0\0O\xF9"s, 300);
    tag.claimedSize = 128;
    add("AClaimedSizeStandsInTheHeader", tag, "ID3\3\0\0\0\0\x01\0TIT2\0\0\0\3\0\0\0O\xF9"s, 300);
    tag = TitleTag("a桜\U0001F3B5");
    tag.encoding = Id3TextEncoding::Utf16;
    add("Utf16HasAMarkAndSurrogates", tag,
        "ID3\3\0\0\0\0\0\x15TIT2\0\0\0\x0B\0\0\1\xFF\xFE"s + "a\0\x5C\x68\x3C\xD8\xB5\xDF"s);
    tag.encoding = Id3TextEncoding::Utf16BigEndian;
    add("BigEndianUtf16HasNone", tag, "ID3\3\0\0\0\0\0\x13TIT2\0\0\0\x09\0\0\2\0a\x68\x5C\xD8\x3C\xDF\xB5"s);
    tag.encoding = Id3TextEncoding::Utf8;
    add("Utf8", tag, "ID3\3\0\0\0\0\0\x13TIT2\0\0\0\x09\0\0\3"s + "a桜\U0001F3B5");
    tag = TitleTag("x");
    tag.version = Id3v2Version::V22;
    tag.frames.push_back({"TYER", "1999"});
    add("Version22HasShortNamesAndHeaders", tag, "ID3\2\0\0\0\0\0\x13TT2\0\0\2\0xTYE\0\0\5\0"s + "1999");
    tag = TitleTag(std::string(199, 'x'));
    tag.version = Id3v2Version::V24;
    add("Version24HasSynchsafeFrameSizes", tag,
        "ID3\4\0\0\0\0\1\x52TIT2\0\0\1\x48\0\0\0"s + std::string(199, 'x'));
    tag.plainFrameSizes = true;
    add("UnlessTheyAreToBePlain", tag, "ID3\4\0\0\0\0\1\x52TIT2\0\0\0\xC8\0\0\0"s + std::string(199, 'x'));
    tag = TitleTag("ÿÿàÿx");
    tag.unsynchronised = true;
    add("UnsynchronisationPutsAZeroBehindWhatLooksLikeASync", tag,
        "ID3\3\0\x80\0\0\0\x12TIT2\0\0\0\6\0\0\0\xFF\0\xFF\0\xE0\xFFx"s);
    tag = Id3v2Tag();
    tag.picture = "PNG";
    tag.pictureZeros = 1000;
    add("APicturesZerosAreCountedButNotWritten", tag,
        "ID3\3\0\0\0\0\x08\x02"s + "APIC\0\0\3\xF8\0\0\0image/png\0\3\0PNG"s, 1000);
    tag.version = Id3v2Version::V22;
    tag.pictureZeros = 0;
    add("Version22NamesAPictureByItsFormat", tag, "ID3\2\0\0\0\0\0\x0FPIC\0\0\x09\0PNG\3\0PNG"s);
    return rows;
}

class Id3v2Tags : public testing::TestWithParam<WrittenTag> {};

TEST_P(Id3v2Tags, HaveTheExpectedBytes) {
    const TagBytes tag = MakeId3v2(GetParam().tag);
    EXPECT_EQ(tag.bytes, GetParam().bytes);
    EXPECT_EQ(tag.zeros, GetParam().zeros);
}

INSTANTIATE_TEST_SUITE_P(Every, Id3v2Tags, testing::ValuesIn(WrittenTags()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Id3v2TagFaults, ATextThatTheEncodingCannotRepresentIsRejected) {
    EXPECT_THROW(MakeId3v2(TitleTag("桜")), std::invalid_argument);
    EXPECT_THROW(MakeId3v2(TitleTag("\xFF")), std::invalid_argument);
}

TEST(Id3v2TagFaults, AFrameThatTheVersionLacksIsRejected) {
    Id3v2Tag tag;
    tag.frames = {{"XXXX", "x"}};
    tag.version = Id3v2Version::V22;
    EXPECT_THROW(MakeId3v2(tag), std::invalid_argument);
}

TEST(Id3v2TagFaults, ASizeOfMoreThan28BitsIsRejected) {
    Id3v2Tag tag = TitleTag("x");
    tag.padding = 1U << 28U;
    EXPECT_THROW(MakeId3v2(tag), std::invalid_argument);
}

} // namespace
} // namespace tunedex
