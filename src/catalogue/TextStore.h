// Memory of the texts of a track table.
#pragma once

#include "LongText.h"
#include "SharedText.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tunedex {

// Keeps texts until it is destroyed. Long texts are stored once in any case, the others as the caller asks.
// Can be moved; its texts then stay where they are.
class TextStore {
  public:
    // Stores the text; a long one is shared.
    SharedText Add(std::string_view text);
    // Returns the one copy of this text, storing it if it is new.
    SharedText Share(std::string_view text);
    // The same, but compares with `last` first and updates it: neighbouring tracks have many texts in common.
    SharedText Share(std::string_view text, SharedText& last) {
        return last.View() == text ? last : last = Share(text);
    }
    // Keeps a long text of LongTexts() as long as the store.
    SharedText Keep(const LongTextHandle& text);

    // The pool of the long texts of this store; threads may share texts in it while the store is in use.
    LongTextPool& LongTexts() { return *longTexts_; }

  private:
    using Block = std::array<char, 65536>;

    void AddBlock();
    void GrowIndex();

    std::vector<std::unique_ptr<Block>> blocks_;
    std::size_t left_ = 0; // free bytes in the last block
    char* next_ = nullptr;
    std::vector<SharedText> index_; // hash table with linear probing; its size is a power of two
    std::size_t indexed_ = 0;
    std::unique_ptr<LongTextPool> longTexts_ = std::make_unique<LongTextPool>(); // a mutex cannot be moved
    std::unordered_map<const void*, LongTextHandle> kept_;                       // by identity
};

} // namespace tunedex
