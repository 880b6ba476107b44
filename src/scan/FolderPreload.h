// Lists folders ahead of a walk on worker threads, so that the walk finds them in the page cache. On a slow
// disk the walk would otherwise block on one folder after the other.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tunedex {

// The workers walk the tree on their own, a bounded number of folders ahead, and keep no names. They ignore
// errors: the walk meets and reports them. Use from one thread.
class FolderPreload {
  public:
    FolderPreload() = default;
    FolderPreload(const FolderPreload&) = delete;
    FolderPreload& operator=(const FolderPreload&) = delete;
    ~FolderPreload() { Stop(); }

    // Starts the workers on the folders that the walk has yet to list, the next one last; each path ends in a
    // separator. Does nothing if no thread can be started.
    void Start(const std::vector<std::string>& pending);
    bool Running() const { return !threads_.empty(); }
    // Call after each folder that the walk has listed. Stops the workers once few of their folders block on
    // disk.
    void Advance();
    // Joins the workers, which close their folders. Returns whether any were running.
    bool Stop();

  private:
    void Run();
    std::vector<std::string> SubFolders(const std::string& folder) const;
    void Judge(bool waited);

    std::vector<std::thread> threads_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> pending_; // the next folder last
    std::size_t ahead_ = 0;            // folders listed here but not yet by the walk (approximate)
    int judged_ = 0;                   // folders sampled in this window
    int loaded_ = 0;                   // of those, how many blocked on disk
    bool pays_ = true;
    std::atomic<bool> stopping_ = false;
};

} // namespace tunedex
