// The temporary files that listings and settings are written to before they are renamed: .tunedex-PID-N.tmp,
// N counted by the process. Each is locked (flock) by the process that writes it.
#pragma once

#include "UniqueFd.h"

#include <set>
#include <string>
#include <sys/types.h>
#include <utility>

namespace tunedex {

struct TemporaryFile {
    UniqueFd descriptor; // none when the file could not be created; errno tells why
    std::string name;
};

// Creates and locks a temporary file in the open folder `folder`. `mode` as for open(): the umask applies.
TemporaryFile CreateTemporaryFile(int folder, mode_t mode);

// Removes the temporary files in the open folder `folder` that were last written more than a day ago and that
// no process holds locked. What cannot be examined or removed stays. Lists the whole folder.
void RemoveStaleTemporaryFiles(int folder);

// The folders that need not be listed again for several files of one listing.
class CleanedFolders {
  public:
    // Whether the open folder `folder` is a new one; one that cannot be examined is not.
    bool Add(int folder);

  private:
    std::set<std::pair<dev_t, ino_t>> folders_;
};

} // namespace tunedex
