#include "LongText.h"

#include "SharedText.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <sys/mman.h>
#include <utility>

namespace tunedex {

namespace {

// The layout of a block: length (64 bits), mark of a long text (32 bits), text.
constexpr std::size_t kMarkAt = sizeof(std::uint64_t);
constexpr std::size_t kTextAt = kMarkAt + sizeof(std::uint32_t);

// Blocks of at least this size are mapped: malloc caches freed blocks of up to 32 MiB for each thread.
constexpr std::size_t kMappedBytes = 131072;

// Like realloc: on failure returns null and leaves the old block unchanged.
char* ResizeBlock(char* block, std::size_t oldCapacity, std::size_t capacity) {
    if (capacity < kMappedBytes) {
        return static_cast<char*>(std::realloc(block, capacity)); // NOLINT(cppcoreguidelines-no-malloc)
    }
    void* mapped = nullptr;
    if (oldCapacity >= kMappedBytes) {
        mapped = mremap(block, oldCapacity, capacity, MREMAP_MAYMOVE);
    } else {
        mapped = mmap(nullptr, capacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    }
    if (mapped == MAP_FAILED) {
        return nullptr;
    }
    if (oldCapacity > 0 && oldCapacity < kMappedBytes) {
        std::memcpy(mapped, block, oldCapacity);
        std::free(block); // NOLINT(cppcoreguidelines-no-malloc): from realloc
    }
    return static_cast<char*>(mapped);
}

} // namespace

LongText::LongText(LongText&& other) noexcept
    : block_(std::exchange(other.block_, nullptr)), capacity_(std::exchange(other.capacity_, 0)),
      length_(std::exchange(other.length_, 0)) {}

LongText& LongText::operator=(LongText&& other) noexcept {
    if (this != &other) {
        Release();
        block_ = std::exchange(other.block_, nullptr);
        capacity_ = std::exchange(other.capacity_, 0);
        length_ = std::exchange(other.length_, 0);
    }
    return *this;
}

LongText::~LongText() {
    Release();
}

void LongText::Release() noexcept {
    if (capacity_ >= kMappedBytes) {
        munmap(block_, capacity_);
    } else {
        std::free(block_); // NOLINT(cppcoreguidelines-no-malloc): from realloc
    }
}

void LongText::Resize(std::size_t capacity) {
    char* const block = ResizeBlock(block_, capacity_, capacity);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    block_ = block;
    capacity_ = capacity;
}

void LongText::Append(std::string_view text) {
    if (text.empty()) {
        return;
    }
    const std::size_t needed = length_ + text.size() + kTextAt;
    if (needed > capacity_) {
        Resize(std::max(needed, capacity_ + capacity_ / 2));
    }
    std::memcpy(block_ + kTextAt + length_, text.data(), text.size());
    length_ += text.size();
    const std::uint64_t length = length_;
    std::memcpy(block_, &length, sizeof length);
    std::memcpy(block_ + kMarkAt, &SharedText::kLongMark, sizeof SharedText::kLongMark);
}

void LongText::RemovePrefix(std::size_t count) {
    length_ -= count;
    if (block_ != nullptr) {
        std::memmove(block_ + kTextAt, block_ + kTextAt + count, length_);
        const std::uint64_t length = length_;
        std::memcpy(block_, &length, sizeof length);
    }
}

void LongText::Fit() {
    // A mapped block stays mapped.
    const std::size_t least = capacity_ >= kMappedBytes ? kMappedBytes : 0;
    const std::size_t capacity = std::max(length_ + kTextAt, least);
    if (capacity < capacity_) {
        Resize(capacity);
    }
}

SharedText LongText::Shared() const {
    return length_ == 0 ? SharedText() : SharedText(block_ + kMarkAt);
}

LongTextHandle LongTextPool::Share(LongText text) {
    const std::size_t hash = std::hash<std::string_view>{}(text.View());
    const std::lock_guard lock(mutex_);
    const auto [first, last] = texts_.equal_range(hash);
    for (auto entry = first; entry != last;) {
        LongTextHandle known = entry->second.lock();
        if (known && known->View() == text.View()) {
            return known;
        }
        entry = known ? std::next(entry) : texts_.erase(entry);
    }
    text.Fit();
    LongTextHandle handle = std::make_shared<const LongText>(std::move(text));
    texts_.emplace(hash, handle);
    return handle;
}

LongTextHandle LongTextPool::Share(std::string_view text) {
    LongText copy;
    copy.Append(text);
    return Share(std::move(copy));
}

} // namespace tunedex
