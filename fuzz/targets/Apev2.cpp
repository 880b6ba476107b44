// Input: the items of an APEv2 tag, without header and footer.
#include "Apev2.h"

#include "BoundedSource.h"
#include "ModernTexts.h"
#include "Targets.h"

namespace tunedex::fuzz {

void RunApev2(Bytes bytes) {
    constexpr std::size_t kOutside = 100; // bytes before and behind the items
    std::string file(kOutside, 'x');
    file += TextOf(bytes) + std::string(kOutside, 'x');
    const ApeItems items{kOutside, kOutside + bytes.size()};
    const auto read = [&](LongTextPool* pool) {
        BoundedSource source(BytesOf(file), items.start, items.end);
        TrackInfo track;
        TagTexts texts(track, PageOf(0), false, pool);
        ReadApev2(source, items, texts);
        source.RequireLinear(40); // of an item of nine bytes, up to 264 are looked at
        return track;
    };
    const TrackInfo plain = read(nullptr);
    RequireTexts(plain);
    LongTextPool pool;
    RequireSameTexts(read(&pool), plain);
}

} // namespace tunedex::fuzz
