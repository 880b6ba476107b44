// Input: one byte, the code page; then a file with an ID3v2 tag at its start.
#include "Id3v2Frames.h"

#include "BoundedSource.h"
#include "ModernTexts.h"
#include "Targets.h"

#include <algorithm>

namespace tunedex::fuzz {

namespace {

TrackInfo ReadFrames(const std::string& file, const Id3v2Header& header, unsigned choice,
                     LongTextPool* pool) {
    // A reader may see what the tag declares, as far as the file goes.
    const std::uint64_t end = std::min<std::uint64_t>(kId3v2HeaderBytes + header.bodyBytes, file.size());
    BoundedSource source(BytesOf(file), kId3v2HeaderBytes, end);
    TrackInfo track;
    TagTexts texts(track, PageOf(choice), (choice & 4U) != 0, pool);
    ReadId3v2Frames(source, header, texts);
    texts.Finish();
    source.RequireLinear(12);
    return track;
}

} // namespace

void RunId3v2Frames(Bytes bytes) {
    Input input(bytes);
    const unsigned choice = input.Byte();
    const std::string file = input.Rest();
    const auto header = ParseId3v2Header(BytesOf(file));
    if (!header || !IsReadable(*header)) {
        return;
    }
    const TrackInfo plain = ReadFrames(file, *header, choice, nullptr);
    RequireTexts(plain);
    LongTextPool pool;
    RequireSameTexts(ReadFrames(file, *header, choice, &pool), plain);
}

} // namespace tunedex::fuzz
