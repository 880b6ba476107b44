// A sliding window over a file, for searches.
#pragma once

#include "ByteSource.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace tunedex {

// The first read is small, `FirstLook` bytes, since nearly every file has what is searched where the search
// starts; later reads are large.
template <std::size_t FirstLook> class ByteWindow {
  public:
    // Sees the file up to `end`, which is at most its size.
    ByteWindow(ByteSource& file, std::uint64_t end) : file_(file), size_(end) {}

    // The bytes from `offset` on: at least `wanted`, fewer only at the end. Valid until the next call.
    // `wanted` is at most 64 KiB, and at most FirstLook at the first call. Raises the error of a failed read.
    std::span<const std::uint8_t> From(std::uint64_t offset, std::size_t wanted) {
        const std::uint64_t left = offset < size_ ? size_ - offset : 0;
        const std::size_t needed = std::min<std::uint64_t>(wanted, left);
        const bool inside = offset >= start_ && offset - start_ <= bytes_.size() &&
                            bytes_.size() - (offset - start_) >= needed;
        if (!inside) {
            Load(offset, left);
        }
        return bytes_.subspan(offset - start_);
    }

  private:
    static constexpr std::size_t kLaterLook = 65536;

    void Load(std::uint64_t offset, std::uint64_t left) {
        std::span<std::uint8_t> buffer = first_;
        if (looked_) {
            later_.resize(kLaterLook);
            buffer = later_;
        }
        looked_ = true;
        buffer = buffer.first(std::min<std::uint64_t>(left, buffer.size()));
        const std::size_t got = file_.Read(offset, buffer);
        start_ = offset;
        bytes_ = buffer.first(got);
        if (got < buffer.size()) {
            size_ = offset + got; // the file was truncated after it was opened
        }
    }

    ByteSource& file_;
    std::uint64_t size_;
    std::uint64_t start_ = 0;
    std::span<const std::uint8_t> bytes_; // from start_ on; points into one of the two buffers
    std::array<std::uint8_t, FirstLook> first_;
    std::vector<std::uint8_t> later_;
    bool looked_ = false;
};

} // namespace tunedex
