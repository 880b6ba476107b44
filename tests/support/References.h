// The prescribed procedures of the hard parts, written out step by step and as slow as they are: what the
// program's own, faster ways are compared with.
#pragma once

#include "ByteSource.h"
#include "RunTimeError.h"
#include "TrackInfo.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex::test {

// Sorts records 1 to N in place (slot 0 is not touched) with the prescribed gaps and exchanges.
void ReferenceSort(std::vector<TrackInfo>& tracks, std::int16_t sortOrder);

struct ReferenceHeader {
    std::uint64_t offset = 0; // 0-based
    bool vbr = false;
    std::uint32_t frameCount = 0;
    std::string bits; // 32 characters "0" and "1"
};

// The header search, byte by byte from a position counted from 1. Nothing where the bytes end first.
std::optional<ReferenceHeader> ReferenceSearch(std::string_view bytes, std::uint64_t searchPosition);

// Counts reads and fails the one that it is told to (counted from 1; 0 none).
class FailingByteSource final : public ByteSource {
  public:
    explicit FailingByteSource(std::string bytes, int failAt = 0)
        : bytes_(std::move(bytes)), failAt_(failAt) {}

    std::uint64_t Size() const override { return bytes_.size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override;
    int Reads() const { return reads_; }

  private:
    std::string bytes_;
    int failAt_;
    int reads_ = 0;
};

} // namespace tunedex::test
