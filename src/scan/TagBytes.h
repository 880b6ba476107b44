// The bytes of an ID3v2 tag behind its header, with or without unsynchronisation.
#pragma once

#include "ByteSource.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tunedex {

// Undoes unsynchronisation (ID3v2.4 structure section 6.1): removes each zero that follows an FF. Takes a
// text in pieces.
class Resynchroniser {
  public:
    // Rewrites `bytes` in place and returns their new number.
    std::size_t Decode(std::span<std::uint8_t> bytes);
    // Whether an FF was followed by E0 to FF, which does not occur in unsynchronised bytes.
    bool Failed() const { return failed_; }

  private:
    bool afterFF_ = false;
    bool failed_ = false;
};

// Reads forward over the bytes of a tag.
class TagBytes {
  public:
    TagBytes() = default;
    TagBytes(const TagBytes&) = delete;
    TagBytes& operator=(const TagBytes&) = delete;
    virtual ~TagBytes() = default;

    // Peek() sees at most this far.
    static constexpr std::size_t kSmallPeek = 256;

    // Copies the bytes from `ahead` behind the position, without moving it; returns their number, fewer than
    // requested only at the end. ahead + buffer.size() is at most kSmallPeek unless SeesAll().
    virtual std::size_t Peek(std::uint64_t ahead, std::span<std::uint8_t> buffer) = 0;
    // Copies bytes and moves the position behind them.
    virtual std::size_t Read(std::span<std::uint8_t> buffer) = 0;
    virtual void Skip(std::uint64_t count) = 0;
    // Bytes to the end of the tag; an upper bound unless SeesAll().
    virtual std::uint64_t Left() const = 0;
    virtual bool SeesAll() const = 0;
    // Moves the position back by that many bytes. Only if SeesAll().
    virtual void Back(std::uint64_t count) = 0;
};

// Bytes as they are in the file.
class PlainTagBytes final : public TagBytes {
  public:
    PlainTagBytes(ByteSource& file, std::uint64_t start, std::uint64_t end)
        : file_(file), position_(start), end_(end) {}

    std::size_t Peek(std::uint64_t ahead, std::span<std::uint8_t> buffer) override;
    std::size_t Read(std::span<std::uint8_t> buffer) override;
    void Skip(std::uint64_t count) override { position_ += count < Left() ? count : Left(); }
    std::uint64_t Left() const override { return end_ - position_; }
    bool SeesAll() const override { return true; }
    void Back(std::uint64_t count) override { position_ -= count; }

  private:
    ByteSource& file_;
    std::uint64_t position_;
    std::uint64_t end_;
};

// Bytes of a tag that is unsynchronised as a whole (ID3v2.3 section 5), decoded in one pass in pieces.
class UnsynchronisedTagBytes final : public TagBytes {
  public:
    UnsynchronisedTagBytes(ByteSource& file, std::uint64_t start, std::uint64_t end)
        : file_(file), position_(start), end_(end) {}

    std::size_t Peek(std::uint64_t ahead, std::span<std::uint8_t> buffer) override;
    std::size_t Read(std::span<std::uint8_t> buffer) override;
    void Skip(std::uint64_t count) override;
    std::uint64_t Left() const override { return end_ - position_ + (decoded_.size() - taken_); }
    bool SeesAll() const override { return false; }
    void Back(std::uint64_t /*count*/) override {}
    // Whether the bytes read so far cannot be unsynchronised ones.
    bool Failed() const { return resynchroniser_.Failed(); }

  private:
    bool Load();
    std::size_t Held() const { return decoded_.size() - taken_; }

    ByteSource& file_;
    std::uint64_t position_; // in the file, of the first byte that is not decoded yet
    std::uint64_t end_;
    std::vector<std::uint8_t> decoded_;
    std::size_t taken_ = 0; // bytes of decoded_ before the position
    Resynchroniser resynchroniser_;
};

} // namespace tunedex
