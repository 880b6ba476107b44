// Temporary files to which listings and settings are written before they are renamed: .tunedex-PID-N.tmp,
// with N counted per process. The writing process holds an exclusive flock on each.
#pragma once

#include "UniqueFd.h"

#include <set>
#include <string>
#include <sys/types.h>
#include <utility>

namespace tunedex {

struct TemporaryFile {
    UniqueFd descriptor; // none when creation failed; errno says why
    std::string name;
};

// Creates and locks a temporary file in the open folder `folder`. `mode` is subject to the umask, as for
// open().
TemporaryFile CreateTemporaryFile(int folder, mode_t mode);

// Removes temporary files from the open folder `folder` that are unlocked and were last written more than a
// day ago. Ignores errors. Reads the whole folder.
void RemoveStaleTemporaryFiles(int folder);

// Remembers cleaned folders, so that a listing of several files cleans each folder once.
class CleanedFolders {
  public:
    // Returns true when the open folder `folder` was not added before; false when it cannot be examined.
    bool Add(int folder);

  private:
    std::set<std::pair<dev_t, ino_t>> folders_;
};

} // namespace tunedex
