// Input: one byte for the search position, two for the number of zeros (in units of 2) before the file, then
// the file. The zeros move headers across the boundaries of the search window.
#include "MpegHeader.h"

#include "PlainReader.h"
#include "RunTimeError.h"
#include "Targets.h"
#include "Tracks.h"

#include <algorithm>

namespace tunedex::fuzz {

namespace {

// A file with fewer bytes than its size says, as if truncated while it is read.
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
        Require(expected.error == 0, "a header is found only if there is one");
        Require(header.offset == expected.offset, "the first header is used");
        Require(header.vbr == expected.vbr, "\"Xing\" is detected");
        Require(!header.vbr || header.frameCount == expected.frames, "the frame count");
        Require(header.offset + 4 <= file.size(), "a header lies within the file");
    } catch (const RunTimeError& error) {
        Require(error.Number() == expected.error, "the error that ends the search");
    }
}

} // namespace

void RunMpegHeader(Bytes bytes) {
    Input input(bytes);
    const std::uint64_t position = 1U + input.Byte();
    const std::size_t high =
        input.Byte(); // a statement of its own: the order within one expression is unspecified
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
