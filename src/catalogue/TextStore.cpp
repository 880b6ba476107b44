#include "TextStore.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>

namespace tunedex {

void TextStore::AddBlock() {
    blocks_.push_back(std::make_unique_for_overwrite<Block>());
    next_ = blocks_.back()->data();
    left_ = blocks_.back()->size();
}

SharedText TextStore::Add(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    if (text.size() >= kLongTextBytes) {
        return Keep(longTexts_->Share(text));
    }
    const auto length = static_cast<std::uint32_t>(text.size());
    const std::size_t needed = sizeof length + text.size();
    if (left_ < needed) {
        AddBlock();
    }
    char* const record = next_;
    std::memcpy(record, &length, sizeof length);
    std::memcpy(record + sizeof length, text.data(), text.size());
    next_ += needed;
    left_ -= needed;
    return SharedText(record);
}

SharedText TextStore::Share(std::string_view text) {
    if (text.empty() || text.size() >= kLongTextBytes) {
        return Add(text);
    }
    if (indexed_ * 2 >= index_.size()) {
        GrowIndex();
    }
    const std::size_t mask = index_.size() - 1;
    std::size_t slot = std::hash<std::string_view>{}(text)&mask;
    while (index_[slot].Identity() != nullptr) {
        if (index_[slot].View() == text) {
            return index_[slot];
        }
        slot = (slot + 1) & mask;
    }
    ++indexed_;
    return index_[slot] = Add(text);
}

SharedText TextStore::Keep(const LongTextHandle& text) {
    const SharedText shared = text->Shared();
    kept_.emplace(shared.Identity(), text);
    return shared;
}

void TextStore::GrowIndex() {
    std::vector<SharedText> old(std::max<std::size_t>(64, index_.size() * 2));
    old.swap(index_);
    const std::size_t mask = index_.size() - 1;
    for (const SharedText text : old) {
        if (text.Identity() == nullptr) {
            continue;
        }
        std::size_t slot = std::hash<std::string_view>{}(text.View()) & mask;
        while (index_[slot].Identity() != nullptr) {
            slot = (slot + 1) & mask;
        }
        index_[slot] = text;
    }
}

} // namespace tunedex
