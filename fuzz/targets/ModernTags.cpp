// Input: one byte, the code page; then a file with tags of any kind.
#include "ModernTags.h"

#include "BoundedSource.h"
#include "ModernTexts.h"
#include "Targets.h"

namespace tunedex::fuzz {

void RunModernTags(Bytes bytes) {
    Input input(bytes);
    const unsigned choice = input.Byte();
    const std::string file = input.Rest();
    BoundedSource source(BytesOf(file));
    const TagLayout layout = FindTags(source);
    TrackInfo plain;
    const TagKind kind = ReadModernTags(source, layout, {PageOf(choice), (choice & 4U) != 0, nullptr}, plain);
    source.RequireLinear(50);
    RequireTexts(plain);
    Require(plain.Title.empty() == (kind == kNoTag), "every tagged file has a title");
    Require(plain.Artist.empty() == (kind == kNoTag), "every tagged file has an artist");
    LongTextPool pool;
    TrackInfo pooled;
    ReadModernTags(source, layout, {PageOf(choice), (choice & 4U) != 0, &pool}, pooled);
    RequireSameTexts(pooled, plain);
}

} // namespace tunedex::fuzz
