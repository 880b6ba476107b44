// Long texts of tags: each in memory of its own, held once however many tracks have it.
#pragma once

#include "SharedText.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <unordered_map>

namespace tunedex {

// A text of this many bytes or more is a long one. Shorter ones are not worth an allocation each.
inline constexpr std::size_t kLongTextBytes = 1024;

// A text that grows by moving its pages, without a second copy of what is there, and gives its memory back to
// the system when it goes. Raises std::bad_alloc like any allocation.
class LongText {
  public:
    LongText() = default;
    LongText(LongText&& other) noexcept;
    LongText& operator=(LongText&& other) noexcept;
    LongText(const LongText&) = delete;
    LongText& operator=(const LongText&) = delete;
    ~LongText();

    void Append(std::string_view text);
    // `count` is at most the text's length.
    void RemovePrefix(std::size_t count);
    // Gives back the memory beyond the text.
    void Fit();

    std::string_view View() const { return Shared().View(); }
    // Valid as long as this text and until it changes.
    SharedText Shared() const;

  private:
    void Resize(std::size_t capacity);
    void Release() noexcept;

    char* block_ = nullptr;
    std::size_t capacity_ = 0; // bytes of the block
    std::size_t length_ = 0;   // bytes of the text
};

using LongTextHandle = std::shared_ptr<const LongText>;

// Where equal long texts become one. A text lives as long as somebody has its handle. Several threads may use
// the pool at once.
class LongTextPool {
  public:
    // The one copy of this text: an earlier one or, when there is none, this.
    LongTextHandle Share(LongText text);
    LongTextHandle Share(std::string_view text);

    // Limits what is read at the same time: when many threads read the same very long text, each has a copy
    // until it is shared. One at a time may exceed kAloneBytes.
    class Turn {
      public:
        // Without a pool there is nothing to wait for.
        explicit Turn(LongTextPool* pool) : pool_(pool) {}

        // Waits, if `bytes` exceed the limit, until no other turn does; the turn lasts until destruction.
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
