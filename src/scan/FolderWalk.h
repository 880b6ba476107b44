// The walk through a start folder and, if wished, everything below it.
#pragma once

#include "FolderSetting.h"
#include "FolderStream.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// A folder being walked, held open for as long as files in it are still to be read.
class OpenFolder {
  public:
    // Raises error 76 for a folder that is not there, 75 for one that may not be listed, 67 without a free
    // descriptor.
    OpenFolder(std::string path, std::string_view baseFolder);
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;
    ~OpenFolder();

    const std::string& Path() const { return path_; } // ends in a separator
    const std::string& BaseFolder() const { return baseFolder_; }
    int Descriptor() const { return stream_.Descriptor(); }
    FolderStream& Stream() { return stream_; }

    // How many are open at the moment.
    static int OpenCount();

  private:
    std::string path_;
    std::string baseFolder_;
    FolderStream stream_;
};

class WalkVisitor {
  public:
    WalkVisitor() = default;
    WalkVisitor(const WalkVisitor&) = delete;
    WalkVisitor& operator=(const WalkVisitor&) = delete;
    virtual ~WalkVisitor() = default;

    // A name that matches "*.MP3". It is valid during the call.
    virtual void OnFile(const std::shared_ptr<OpenFolder>& folder, const char* name) = 0;
    // After every name. Returns whether to go on.
    virtual bool AfterEntry() = 0;
    // There is no free descriptor for the next folder: closes what can be closed. Returns whether anything
    // was.
    virtual bool ReleaseFolders() = 0;
};

class FolderWalk {
  public:
    // Whether other threads list folders ahead of the walk: never, once it has waited for the disk, or at
    // once.
    enum class Preload { Never, WhenWaiting, AtOnce };

    explicit FolderWalk(Preload preload = Preload::Never) : preload_(preload) {}

    // Visits the MP3 files of the folder, then with `recurse` its sub-folders, each with its own before the
    // next, siblings in the reverse of the order in which they were listed. Names stand in the order of the
    // directory. A folder is walked once, by whatever links it is reached. Returns false when the visitor
    // stopped it. Raises the error of a folder that cannot be listed; CurrentFolder() is that folder then.
    bool Run(const StartFolder& start, bool recurse, WalkVisitor& visitor);

    // The folder being walked.
    const std::string& CurrentFolder() const { return currentFolder_; }

  private:
    bool WalkOne(const std::shared_ptr<OpenFolder>& folder, bool recurse, WalkVisitor& visitor);

    const Preload preload_;
    std::vector<std::string> pending_; // the next folder is the last
    std::string currentFolder_;
};

} // namespace tunedex
