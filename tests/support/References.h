// Literal, slow versions of the required algorithms, to compare with the faster ones of the program.
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

// Sorts records 1 to N in place with the required gaps and exchanges; slot 0 is unused.
void ReferenceSort(std::vector<TrackInfo>& tracks, std::int16_t sortOrder);

struct ReferenceHeader {
    std::uint64_t offset = 0; // 0-based
    bool vbr = false;
    std::uint32_t frameCount = 0;
    std::string bits; // 32 characters "0" and "1"
};

// The header search, byte by byte from a 1-based position. Empty when the bytes end first.
std::optional<ReferenceHeader> ReferenceSearch(std::string_view bytes, std::uint64_t searchPosition);

// Counts reads and fails the given one (1-based; 0: none).
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
