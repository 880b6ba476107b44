#include "FolderPreload.h"

#include "DescriptorShare.h"
#include "DiskWaits.h"
#include "Path.h"

#include <algorithm>
#include <dirent.h>
#include <exception>
#include <utility>

namespace tunedex {

namespace {

// Folders hold at most this part of the descriptors of the process.
constexpr std::size_t kPartOfDescriptors = 8;

using Folders = std::vector<std::shared_ptr<PendingFolder>>;

// The first folder in the order of the walk that waits to be listed; null if `left` folders come before it.
std::shared_ptr<PendingFolder> FirstWaiting(const Folders& folders, std::size_t& left) {
    for (auto folder = folders.rbegin(); folder != folders.rend() && left > 0; ++folder) {
        if ((*folder)->state == PendingFolder::State::Waiting) {
            return *folder;
        }
        --left;
        if (auto below = FirstWaiting((*folder)->subFolders, left)) {
            return below;
        }
    }
    return nullptr;
}

// Symbolic links are left to the walk: only it remembers visited folders, so the workers could loop for ever.
Folders SubFoldersOf(const OpenFolder& folder) {
    Folders subFolders;
    folder.ForEachReadAhead([&](const FolderEntry& entry) {
        if (entry.type == DT_DIR && entry.name[0] != '.') {
            subFolders.push_back(
                std::make_shared<PendingFolder>(folder.Path() + entry.name + PathStyle::Native().separator));
        }
    });
    return subFolders;
}

} // namespace

FolderPreload::FolderPreload(std::string_view baseFolder)
    : baseFolder_(baseFolder), mostOpen_(DescriptorShare(kMostOpen, kPartOfDescriptors)),
      slots_(std::make_shared<char>()) {}

void FolderPreload::Push(std::string path, PendingFolder* parent) {
    std::shared_ptr<PendingFolder> folder;
    if (parent != nullptr && parent->pushed < parent->subFolders.size() &&
        parent->subFolders[parent->pushed]->path == path) {
        folder = std::move(parent->subFolders[parent->pushed++]);
    } else {
        folder = std::make_shared<PendingFolder>(std::move(path));
    }
    {
        const std::lock_guard lock(mutex_);
        pending_.push_back(std::move(folder));
    }
    if (Running()) {
        changed_.notify_one();
    }
}

std::shared_ptr<PendingFolder> FolderPreload::Pop() {
    std::unique_lock lock(mutex_);
    if (pending_.empty()) {
        return nullptr;
    }
    std::shared_ptr<PendingFolder> next = std::move(pending_.back());
    pending_.pop_back();
    listed_.wait(lock, [&] { return next->state != PendingFolder::State::Listing; });
    next->slot.reset();
    lock.unlock();
    if (Running()) {
        changed_.notify_one();
    }
    return next;
}

void FolderPreload::Start() {
    if (Running()) {
        return;
    }
    stop_ = std::stop_source();
    judged_ = blocked_ = 0;
    pays_ = true;
    try {
        while (threads_.size() < kThreads) {
            threads_.emplace_back([this] { Run(); });
        }
    } catch (const std::exception&) { // out of threads or memory: fewer workers do
    }
}

bool FolderPreload::Pays() {
    const std::lock_guard lock(mutex_);
    return pays_;
}

void FolderPreload::Stop() {
    stop_.request_stop();
    threads_.clear();
}

bool FolderPreload::Release() {
    bool released = Running();
    Stop();
    for (const auto& folder : pending_) {
        released = released || folder->state != PendingFolder::State::Waiting;
        folder->folder.reset();
        folder->slot.reset();
        folder->subFolders.clear();
        folder->state = PendingFolder::State::Waiting;
    }
    return released;
}

void FolderPreload::Run() {
    const std::stop_token stop = stop_.get_token();
    std::unique_lock lock(mutex_);
    while (true) {
        std::shared_ptr<PendingFolder> next;
        changed_.wait(lock, stop, [&] { return (next = NextToList()) != nullptr; });
        if (stop.stop_requested()) {
            return;
        }
        next->state = PendingFolder::State::Listing;
        next->slot = slots_;
        List(*next, lock);
        listed_.notify_one();
        changed_.notify_all();
    }
}

std::shared_ptr<PendingFolder> FolderPreload::NextToList() const {
    if (static_cast<std::size_t>(slots_.use_count()) > mostOpen_) {
        return nullptr;
    }
    std::size_t left = kMostAhead;
    return FirstWaiting(pending_, left);
}

// Lists the folder with the mutex unlocked.
void FolderPreload::List(PendingFolder& pending, std::unique_lock<std::mutex>& lock) {
    std::shared_ptr<OpenFolder> folder;
    std::vector<std::shared_ptr<PendingFolder>> subFolders;
    lock.unlock();
    const std::int64_t waits = WaitsOfThread();
    try {
        folder = std::make_shared<OpenFolder>(pending.path, baseFolder_);
        folder->ReadAhead(kMostEntries);
        subFolders = SubFoldersOf(*folder);
    } catch (const std::exception&) { // the walk meets the same error and reports it
        folder.reset();
        subFolders.clear();
    }
    const bool waited = WaitsOfThread() != waits;
    lock.lock();
    pending.folder = std::move(folder);
    pending.subFolders = std::move(subFolders);
    pending.state = PendingFolder::State::Listed;
    Judge(waited);
}

// With nothing to load, the workers only contend with the walk for the directory locks and the CPU.
void FolderPreload::Judge(bool waited) {
    constexpr int kFolders = 64;
    constexpr int kFew = 16;
    blocked_ += waited ? 1 : 0;
    if (++judged_ == kFolders) {
        pays_ = pays_ && blocked_ >= kFew;
        judged_ = blocked_ = 0;
    }
}

} // namespace tunedex
