// Listing folders before a walk comes to them, so that it finds them in the system's memory: on a slow disk
// most of its time would be waiting for one folder after the other.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tunedex {

// Goes its own way through the folders, some hundred ahead of the walk and no further, and keeps nothing of
// what it finds; what it cannot list, the walk will report.
class FolderPreload {
  public:
    FolderPreload() = default;
    FolderPreload(const FolderPreload&) = delete;
    FolderPreload& operator=(const FolderPreload&) = delete;
    ~FolderPreload() { Stop(); }

    // Begins with the folders that the walk has still to list, the next one last; each path ends in a
    // separator. Without a thread to be had it does nothing.
    void Start(const std::vector<std::string>& pending);
    bool Running() const { return !threads_.empty(); }
    // The walk has listed one more folder. Ends the preloading when it has hardly a folder to load any more.
    void Advance();
    // Closes every folder. Returns whether it was running.
    bool Stop();

  private:
    void Run();
    std::vector<std::string> SubFolders(const std::string& folder) const;
    void Judge(bool waited);

    std::vector<std::thread> threads_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> pending_; // the next folder is the last
    std::size_t ahead_ = 0;            // folders listed here and not by the walk, or nearly so
    int judged_ = 0;                   // folders of which is known
    int loaded_ = 0;                   // whether they came from the disk
    bool pays_ = true;
    std::atomic<bool> stopping_ = false;
};

} // namespace tunedex
