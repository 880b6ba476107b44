#include "FolderPreload.h"

#include "DiskWaits.h"
#include "FolderStream.h"
#include "Path.h"

#include <exception>
#include <iterator>
#include <new>
#include <utility>

namespace tunedex {

namespace {

constexpr std::size_t kThreads = 16;
constexpr std::size_t kMostAhead = 512;

} // namespace

void FolderPreload::Start(const std::vector<std::string>& pending) {
    pending_ = pending;
    ahead_ = 0;
    judged_ = loaded_ = 0;
    pays_ = true;
    try {
        while (threads_.size() < kThreads) {
            threads_.emplace_back([this] { Run(); });
        }
    } catch (const std::exception&) { // out of threads or memory: fewer workers do
    }
}

void FolderPreload::Advance() {
    bool pays = true;
    {
        const std::lock_guard lock(mutex_);
        ahead_ -= ahead_ > 0 ? 1 : 0;
        pays = pays_;
    }
    if (pays) {
        changed_.notify_one();
    } else {
        Stop();
    }
}

bool FolderPreload::Stop() {
    const bool running = Running();
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) {
        thread.join();
    }
    threads_.clear();
    stopping_ = false;
    return running;
}

void FolderPreload::Run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return stopping_ || (!pending_.empty() && ahead_ < kMostAhead); });
        if (stopping_) {
            return;
        }
        const std::string folder = std::move(pending_.back());
        pending_.pop_back();
        ++ahead_;
        lock.unlock();
        const std::int64_t waits = WaitsOfThread();
        std::vector<std::string> found = SubFolders(folder);
        const bool waited = WaitsOfThread() != waits;
        lock.lock();
        Judge(waited);
        try {
            pending_.insert(pending_.end(), std::make_move_iterator(found.begin()),
                            std::make_move_iterator(found.end()));
        } catch (const std::bad_alloc&) {
            return; // out of memory: leave what there is to the walk
        }
        if (found.size() > 1) {
            changed_.notify_all();
        }
    }
}

// With nothing to load, the workers only contend with the walk for the directory locks and the CPU.
void FolderPreload::Judge(bool waited) {
    constexpr int kFolders = 64;
    constexpr int kFew = 16;
    loaded_ += waited ? 1 : 0;
    if (++judged_ == kFolders) {
        pays_ = pays_ && loaded_ >= kFew;
        judged_ = loaded_ = 0;
    }
}

// Reading a folder to its end loads it into the page cache. Symbolic links are skipped: only the walk
// remembers visited folders, so the workers could loop for ever.
std::vector<std::string> FolderPreload::SubFolders(const std::string& folder) const {
    std::vector<std::string> found;
    FolderStream stream(folder);
    try {
        while (stream && !stopping_) {
            const dirent* entry = stream.Next();
            if (entry == nullptr) {
                break;
            }
            if (entry->d_type == DT_DIR && entry->d_name[0] != '.') {
                found.push_back(folder + static_cast<const char*>(entry->d_name) +
                                PathStyle::Native().separator);
            }
        }
    } catch (const std::exception&) { // the walk meets the same error and reports it
    }
    return found;
}

} // namespace tunedex
