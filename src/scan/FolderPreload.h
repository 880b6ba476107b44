// The folders that a walk has still to visit. Worker threads can open and list them ahead of the walk, so
// that on a slow disk it does not block on one folder after the other.
#pragma once

#include "OpenFolder.h"

#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace tunedex {

struct PendingFolder {
    enum class State { Waiting, Listing, Listed };

    explicit PendingFolder(std::string folderPath) : path(std::move(folderPath)) {}

    std::string path;                   // ends in a separator
    std::shared_ptr<OpenFolder> folder; // listed ahead; null otherwise, also if that failed
    // The sub-folders among the entries in memory, in listing order, and how many have been pushed.
    std::vector<std::shared_ptr<PendingFolder>> subFolders;
    std::size_t pushed = 0;
    State state = State::Waiting;
    std::shared_ptr<void> slot; // while a worker lists it and until it is popped
};

// Workers list the next kMostAhead folders in the order of the walk. Sub-folders come before folders that
// were already listed, so there may be more of these, up to kMostOpen; each holds a file descriptor. What
// cannot be listed is left to the walk, which reports the error. All functions are called on one thread.
class FolderPreload {
  public:
    static constexpr std::size_t kThreads = 16;
    static constexpr std::size_t kMostAhead = 64;
    static constexpr std::size_t kMostOpen = 128;
    // Of a larger folder, the walk reads the other entries itself.
    static constexpr std::size_t kMostEntries = 1024;

    // `baseFolder`: of the folders that are opened.
    explicit FolderPreload(std::string_view baseFolder);
    FolderPreload(const FolderPreload&) = delete;
    FolderPreload& operator=(const FolderPreload&) = delete;
    ~FolderPreload() { Stop(); }

    // Adds a folder, which is the next to be visited. `parent`, if not null, is the folder it was found in:
    // it may have been listed already.
    void Push(std::string path, PendingFolder* parent = nullptr);
    // Removes the next folder and returns it, once no worker is listing it; null if there is none.
    std::shared_ptr<PendingFolder> Pop();

    // Starts the workers, unless they are running. Does nothing if no thread can be started.
    void Start();
    bool Running() const { return !threads_.empty(); }
    // Whether enough of the latest folders blocked on disk to be worth the workers.
    bool Pays();
    // Joins the workers; the folders they have listed stay open.
    void Stop();
    // Stops and closes these folders. Returns whether there was anything to stop or close.
    bool Release();

  private:
    using Folders = std::vector<std::shared_ptr<PendingFolder>>;

    void Run();
    void List(PendingFolder& pending, std::unique_lock<std::mutex>& lock);
    std::shared_ptr<PendingFolder> NextToList() const;
    void Judge(bool waited);

    const std::string baseFolder_;
    const std::size_t mostOpen_;
    const std::shared_ptr<void> slots_; // its references, but for this one, are those of listed folders
    std::vector<std::jthread> threads_;
    std::stop_source stop_;

    // Guarded by mutex_.
    mutable std::mutex mutex_;
    std::condition_variable_any changed_; // there may be a folder to list
    std::condition_variable listed_;      // a folder has been listed
    Folders pending_;                     // the next folder last
    int judged_ = 0;                      // folders sampled in this window
    int blocked_ = 0;                     // of those, how many blocked on disk
    bool pays_ = true;
};

} // namespace tunedex
