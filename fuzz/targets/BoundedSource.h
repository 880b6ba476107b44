// A file in memory that aborts on a read outside the bytes that a reader may see, and counts what is read.
#pragma once

#include "ByteSource.h"
#include "Fuzzing.h"

#include <cstdint>

namespace tunedex::fuzz {

class BoundedSource final : public ByteSource {
  public:
    // Readers may see the bytes from `start` to `end`; the size is that of all bytes.
    BoundedSource(Bytes bytes, std::uint64_t start, std::uint64_t end)
        : source_(bytes), start_(start), end_(end) {}
    explicit BoundedSource(Bytes bytes) : BoundedSource(bytes, 0, bytes.size()) {}

    std::uint64_t Size() const override { return source_.Size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override {
        const std::size_t got = source_.Read(offset, buffer);
        Require(got == 0 || (offset >= start_ && offset + got <= end_), "nothing outside the bounds is read");
        bytesRead_ += got;
        return got;
    }
    // Requires that at most `factor` times the bytes within the bounds were read, beside a few blocks.
    void RequireLinear(std::uint64_t factor) const {
        constexpr std::uint64_t kBlocks = 262144;
        Require(bytesRead_ <= factor * (end_ - start_) + kBlocks, "the bytes read are linear in the input");
    }

  private:
    MemoryByteSource source_;
    std::uint64_t start_;
    std::uint64_t end_;
    std::uint64_t bytesRead_ = 0;
};

} // namespace tunedex::fuzz
