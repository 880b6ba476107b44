#include "ModernTexts.h"

#include "Text.h"

#include <array>

namespace tunedex::fuzz {

namespace {

constexpr std::array kTexts = {&TrackInfo::Title,  &TrackInfo::Artist,      &TrackInfo::Album,
                               &TrackInfo::Year,   &TrackInfo::Genre,       &TrackInfo::Track,
                               &TrackInfo::Disc,   &TrackInfo::AlbumArtist, &TrackInfo::Composer,
                               &TrackInfo::Comment};

} // namespace

const CodePage& PageOf(unsigned choice) {
    static const std::array<CodePage, 4> kPages = {CodePage("windows-1252"), CodePage("CP932"),
                                                   CodePage("UTF-8"), CodePage("windows-1258")};
    return kPages.at(choice & 3U);
}

void RequireTexts(const TrackInfo& track) {
    for (const auto field : kTexts) {
        const std::string& text = track.*field;
        Require(IsValidUtf8(text), "texts are valid UTF-8");
        Require(text.find('\0') == std::string::npos, "texts contain no NUL");
    }
}

void RequireSameTexts(const TrackInfo& pooled, const TrackInfo& plain) {
    TrackInfo whole = pooled;
    for (const LongField& held : pooled.LongFields) {
        Require(held.text->View().size() >= kLongTextBytes, "only long texts are in the pool");
        Require((whole.*held.field).empty(), "the member of a long text is empty");
        whole.*held.field = held.text->View();
    }
    for (const auto field : kTexts) {
        RequireEqual(whole.*field, plain.*field, "a text read with and without a pool");
    }
}

} // namespace tunedex::fuzz
