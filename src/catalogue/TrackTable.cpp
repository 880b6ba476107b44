#include "TrackTable.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <sys/mman.h>
#include <utility>

namespace tunedex {

namespace {

constexpr std::size_t kFirstBlocks = 16;
constexpr std::size_t kSmallBlock = 65536;
constexpr std::size_t kLargeBlock = 2097152; // a huge page

struct FieldPair {
    std::string TrackInfo::*read;
    SharedText TrackRow::*stored;
};

SharedText TrackRow::*RowField(std::string TrackInfo::*field) {
    constexpr std::array<FieldPair, 5> kFields = {{{&TrackInfo::Artist, &TrackRow::Artist},
                                                   {&TrackInfo::Title, &TrackRow::Title},
                                                   {&TrackInfo::Album, &TrackRow::Album},
                                                   {&TrackInfo::Year, &TrackRow::Year},
                                                   {&TrackInfo::Genre, &TrackRow::Genre}}};
    return std::find_if(kFields.begin(), kFields.end(),
                        [field](const FieldPair& pair) { return pair.read == field; })
        ->stored;
}

} // namespace

void TextStore::FreeBlock::operator()(char* block) const {
    std::free(block); // NOLINT(cppcoreguidelines-no-malloc): from aligned_alloc
}

// A small table takes little; a large one lies in huge pages, where the system has them: its texts are
// visited in no order, and half of the waiting would be for the addresses of pages.
void TextStore::AddBlock(std::size_t needed) {
    const std::size_t unit = blocks_.size() < kFirstBlocks ? kSmallBlock : kLargeBlock;
    const std::size_t size = (needed + unit - 1) / unit * unit;
    std::unique_ptr<char, FreeBlock> block(static_cast<char*>(std::aligned_alloc(unit, size)));
    if (!block) {
        throw std::bad_alloc();
    }
    if (unit == kLargeBlock) {
        madvise(block.get(), size, MADV_HUGEPAGE);
    }
    next_ = block.get();
    left_ = size;
    blocks_.push_back(std::move(block));
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
    if (left_ < needed + SharedText::kPadding) {
        AddBlock(needed + SharedText::kPadding);
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

void TrackTable::Append(const TrackInfo& track) {
    TrackRow row;
    row.FullPath = texts_.Add(track.FullPath);
    const bool untagged = track.TagType == kNoTag;
    // A file without tags has its path for an artist: the same text, not a second one.
    row.Artist =
        untagged && track.Artist == track.FullPath ? row.FullPath : texts_.Share(track.Artist, last_.Artist);
    row.Title = untagged ? texts_.Share(track.Title) : texts_.Add(track.Title);
    row.BaseFolder = texts_.Share(track.BaseFolder, last_.BaseFolder);
    row.Album = texts_.Share(track.Album, last_.Album);
    row.Year = texts_.Share(track.Year, last_.Year);
    row.Genre = texts_.Share(track.Genre, last_.Genre);
    row.Bitrate = texts_.Share(track.Bitrate, last_.Bitrate);
    row.Frequency = texts_.Share(track.Frequency, last_.Frequency);
    row.Mode = texts_.Share(track.Mode, last_.Mode);
    row.MpegType = texts_.Share(track.MpegType, last_.MpegType);
    row.Duration = texts_.Share(track.Duration);
    row.FileSize = track.FileSize;
    row.TagType = track.TagType;
    for (const LongField& field : track.LongFields) {
        row.*RowField(field.field) = texts_.Keep(field.text);
    }
    rows_.push_back(row);
}

TrackInfo TrackTable::Copy(std::size_t position) const {
    const TrackRow& row = At(position);
    const auto text = [](SharedText shared) { return std::string(shared.View()); };
    return {text(row.FullPath), text(row.BaseFolder), row.FileSize,   text(row.Artist),
            text(row.Title),    text(row.Album),      text(row.Year), text(row.Genre),
            text(row.Bitrate),  text(row.Frequency),  text(row.Mode), text(row.MpegType),
            text(row.Duration), row.TagType};
}

} // namespace tunedex
