// Who may do what with a file that takes the place of another, or that is new.
#pragma once

#include <sys/stat.h>

namespace tunedex {

// Gives the open file `to` the mode, the access-control list and the user attributes (user.*) of the open
// file `from`, whose status is `old`; also its owner and group as far as the system allows. Returns false
// where the file system or the system refuses one of the first three. Raises errors 57, 61 and the like for
// other failures.
bool CopyPermissions(int from, const struct stat& old, int to);

// Gives the open file `file`, created in the folder `folder` (a descriptor, O_PATH suffices) with a narrower
// mode, what a file created there with mode 0666 has: the folder's default access-control list, or else what
// the process's umask leaves. Returns false when that fails.
bool GiveNewFilePermissions(int file, int folder);

} // namespace tunedex
