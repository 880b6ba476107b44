// The bytes are a file, its first three aside: where the search begins, and how many bytes of nothing stand
// before the rest, so that headers come to lie across the search's windows.
#include "MpegHeader.h"

#include "PlainReader.h"
#include "RunTimeError.h"
#include "Targets.h"
#include "Tracks.h"

#include <algorithm>

namespace tunedex::fuzz {

namespace {

// A file that gives fewer bytes than it promised, as one does that shrinks while it is read.
class ShrinkingSource final : public ByteSource {
  public:
    ShrinkingSource(Bytes bytes, std::uint64_t promised) : memory_(bytes), promised_(promised) {}
    std::uint64_t Size() const override { return promised_; }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override {
        return memory_.Read(offset, buffer);
    }

  private:
    MemoryByteSource memory_;
    std::uint64_t promised_;
};

void Check(ByteSource& source, const std::string& file, std::uint64_t position) {
    const plain::Header expected = plain::FindHeader(file, position);
    try {
        const MpegHeader header = FindMpegHeader(source, position);
        Require(expected.error == 0, "a header is found where there is one");
        Require(header.offset == expected.offset, "the first header is taken");
        Require(header.vbr == expected.vbr, "\"Xing\" is seen where it is");
        Require(!header.vbr || header.frameCount == expected.frames, "the frame count is read");
        Require(header.offset + 4 <= file.size(), "a header lies within the file");
    } catch (const RunTimeError& error) {
        Require(error.Number() == expected.error, "the search ends as it should");
    }
}

} // namespace

void RunMpegHeader(Bytes bytes) {
    Input input(bytes);
    const std::uint64_t position = 1U + input.Byte();
    const std::size_t high = input.Byte(); // on a line of its own: in one expression either could come first
    const std::size_t before = (high * 256U + input.Byte()) * 2U;
    std::string file(before, '\0');
    file += input.Rest();
    MemoryByteSource source(BytesOf(file));
    Check(source, file, position);
    Check(source, file, before + position);
    ShrinkingSource shrinking(BytesOf(file), file.size() + 100000);
    Check(shrinking, file, position);
}

} // namespace tunedex::fuzz
