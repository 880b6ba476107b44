// Long tag texts: each in its own memory, stored once however many tracks have it.
#pragma once

#include "SharedText.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <unordered_map>

namespace tunedex {

// Texts of at least this many bytes are long texts; a shorter one does not justify an allocation.
inline constexpr std::size_t kLongTextBytes = 1024;

// A growing text. Growth remaps its pages instead of copying them, and the destructor returns the memory to
// the system. Raises std::bad_alloc like any allocation.
class LongText {
  public:
    LongText() = default;
    LongText(LongText&& other) noexcept;
    LongText& operator=(LongText&& other) noexcept;
    LongText(const LongText&) = delete;
    LongText& operator=(const LongText&) = delete;
    ~LongText();

    void Append(std::string_view text);
    // `count` is at most the length.
    void RemovePrefix(std::size_t count);
    // Releases unused memory.
    void Fit();

    std::string_view View() const { return Shared().View(); }
    // Valid until this text changes or is destroyed.
    SharedText Shared() const;

  private:
    void Resize(std::size_t capacity);
    void Release() noexcept;

    char* block_ = nullptr;
    std::size_t capacity_ = 0; // bytes of the block
    std::size_t length_ = 0;   // bytes of the text
};

using LongTextHandle = std::shared_ptr<const LongText>;

// Returns one handle for equal long texts. A text lives as long as a handle to it. Thread-safe.
class LongTextPool {
  public:
    // Returns the earlier equal text if it still lives, otherwise `text`.
    LongTextHandle Share(LongText text);
    LongTextHandle Share(std::string_view text);

    // Bounds the memory of texts that are not shared yet: threads that read the same very long text each have
    // a copy. Only one thread at a time may hold more than kAloneBytes.
    class Turn {
      public:
        // Without a pool, Reach() never waits.
        explicit Turn(LongTextPool* pool) : pool_(pool) {}

        // If `bytes` exceeds kAloneBytes, waits until no other turn does; holds the turn until destruction.
        void Reach(std::size_t bytes) {
            if (pool_ != nullptr && bytes > kAloneBytes && !lock_.owns_lock()) {
                lock_ = std::unique_lock(pool_->turn_);
            }
        }

      private:
        LongTextPool* pool_;
        std::unique_lock<std::mutex> lock_;
    };

    static constexpr std::size_t kAloneBytes = 131072;

  private:
    std::mutex turn_;
    std::mutex mutex_;
    std::unordered_multimap<std::size_t, std::weak_ptr<const LongText>> texts_; // by hash
};

} // namespace tunedex
