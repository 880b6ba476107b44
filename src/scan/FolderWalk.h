// Walks a start folder and, optionally, the folders below it.
#pragma once

#include "FolderSetting.h"
#include "OpenFolder.h"
#include "RunTimeError.h"
#include "RunTotals.h"

#include <memory>
#include <string>

namespace tunedex {

class WalkVisitor {
  public:
    WalkVisitor() = default;
    WalkVisitor(const WalkVisitor&) = delete;
    WalkVisitor& operator=(const WalkVisitor&) = delete;
    virtual ~WalkVisitor() = default;

    // Called for each name that matches "*.MP3"; `name` is valid during the call.
    virtual void OnFile(const std::shared_ptr<OpenFolder>& folder, const char* name) = 0;
    // Called after each name, matching or not. Returns false to stop the walk.
    virtual bool AfterEntry() = 0;
    // Called when `folder` cannot be listed, or not to its end (`name` is then empty), and when a name in it
    // cannot be examined; `kind` is what the name may be. Returns whether the walk goes on without it;
    // otherwise the walk raises the error.
    virtual bool SkipsUnread(UnreadKind /*kind*/, const std::string& /*folder*/, const char* /*name*/,
                             const RunTimeError& /*error*/) {
        return false;
    }
    // Called when no file descriptor is free for the next folder: close what can be closed. Returns whether
    // anything was.
    virtual bool ReleaseFolders() = 0;
};

class FolderWalk {
  public:
    // When worker threads list folders ahead of the walk: never, once the walk has blocked on disk, or from
    // the start.
    enum class Preload { Never, WhenWaiting, AtOnce };

    explicit FolderWalk(Preload preload = Preload::Never) : preload_(preload) {}

    // Visits the MP3 files of the folder in directory order, then with `recurse` its sub-folders, depth
    // first. Siblings are visited in the reverse of the order in which they were listed. A folder is walked
    // once, whatever links lead to it. Returns false if the visitor stopped the walk. Raises the error of a
    // folder that cannot be listed, unless the visitor skips it; CurrentFolder() is then that folder.
    bool Run(const StartFolder& start, bool recurse, WalkVisitor& visitor);

    // The folder being walked.
    const std::string& CurrentFolder() const { return currentFolder_; }

  private:
    const Preload preload_;
    std::string currentFolder_;
};

} // namespace tunedex
