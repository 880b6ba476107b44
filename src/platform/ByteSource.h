// Bounded random access to bytes: a file or a block of memory behind one interface, for the three tag
// readers.
#pragma once

#include "StopTest.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tunedex {

class ByteSource {
  public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    // Length in bytes.
    virtual std::uint64_t Size() const = 0;

    // Fills `buffer` from `offset` (0-based) on and returns how many bytes there were: fewer than asked for
    // only at the end. Raises error 57 and the like when reading fails.
    virtual std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) = 0;

    // Fills the whole buffer. Raises error 62 when the bytes end before it is full.
    void ReadExactly(std::uint64_t offset, std::span<std::uint8_t> buffer);
};

class MemoryByteSource final : public ByteSource {
  public:
    // The bytes must outlive the source.
    explicit MemoryByteSource(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::uint64_t Size() const override { return bytes_.size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override;

  private:
    std::span<const std::uint8_t> bytes_;
};

// What the system may load beside what is asked for. It guesses that a file is read on, and loads four times
// as much as a tag reader needs: no matter where the file is in memory already, but it fills the memory from
// a slow disk.
enum class ReadAhead { AsUsual, Nothing };

// A file, opened once. A small read loads a window of the file, since the next read is nearly always close
// by: a typical file costs one read for its head and one for its tail.
class FileByteSource final : public ByteSource {
  public:
    // Raises error 53 for a path that is not there or is a folder, 75 where it may not be read, and so on.
    explicit FileByteSource(const std::string& path);
    // The same for a name in an open folder. `folder` is a descriptor and stays the caller's. `stop`, which
    // must outlive the source, is asked at each read of the file after the first few: once it says so, the
    // file counts as ended, and Stopped() tells so.
    FileByteSource(int folder, const char* name, ReadAhead readAhead = ReadAhead::AsUsual,
                   const StopTest* stop = nullptr);
    ~FileByteSource() override;

    std::uint64_t Size() const override { return size_; }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override;
    bool Stopped() const { return stopped_; }

  private:
    static constexpr std::size_t kWindowBytes = 4096;
    // As many reads as a file of the usual shape needs: such a file never asks.
    static constexpr unsigned kReadsUnasked = 4;

    struct Window {
        std::uint64_t offset = 0;
        std::size_t length = 0;
        std::array<std::uint8_t, kWindowBytes> bytes;
    };

    std::size_t ReadFile(std::uint64_t offset, std::span<std::uint8_t> buffer);

    int descriptor_ = -1;
    std::uint64_t size_ = 0;
    const StopTest* stop_ = nullptr;
    unsigned reads_ = 0; // no more are counted than kReadsUnasked
    bool stopped_ = false;
    Window window_;
};

} // namespace tunedex
