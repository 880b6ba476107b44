// Bounded random access to the bytes of a file or of a memory block, for the tag readers.
#pragma once

#include "StopTest.h"
#include "UniqueFd.h"

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

    // Fills `buffer` from the 0-based `offset` and returns the number of bytes read; fewer than requested
    // only at the end. Raises error 57 and the like when the read fails.
    virtual std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) = 0;

    // Fills the whole buffer. Raises error 62 when the source ends first.
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

// Kernel readahead assumes sequential reads and loads about four times what a tag reader needs. On a slow
// disk this costs time and page cache; ReadAhead::Nothing turns it off.
enum class ReadAhead { AsUsual, Nothing };

// A file that is opened once. A small read loads a window of the file, because the next read is usually
// nearby: a typical file costs one pread for its head and one for its tail.
class FileByteSource final : public ByteSource {
  public:
    // Raises error 53 for a missing path or a folder, 75 where reading is not permitted, and so on.
    explicit FileByteSource(const std::string& path);
    // Opens `name` in the folder descriptor `folder`, which remains the caller's. `stop`, which must outlive
    // the source, is called before each read after the first kReadsUnasked; once it returns true, the file
    // reads as ended and Stopped() is true.
    FileByteSource(int folder, const char* name, ReadAhead readAhead = ReadAhead::AsUsual,
                   const StopTest* stop = nullptr);

    std::uint64_t Size() const override { return size_; }
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override;
    bool Stopped() const { return stopped_; }

  private:
    static constexpr std::size_t kWindowBytes = 4096;
    // The number of reads of a file with ordinary tags: it never calls the stop test.
    static constexpr unsigned kReadsUnasked = 4;

    struct Window {
        std::uint64_t offset = 0;
        std::size_t length = 0;
        std::array<std::uint8_t, kWindowBytes> bytes;
    };

    std::size_t ReadFile(std::uint64_t offset, std::span<std::uint8_t> buffer);

    UniqueFd descriptor_;
    std::uint64_t size_ = 0;
    const StopTest* stop_ = nullptr;
    unsigned reads_ = 0; // counts up to kReadsUnasked
    bool stopped_ = false;
    Window window_;
};

} // namespace tunedex
