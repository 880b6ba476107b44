// Copies access rights to a replacement file, or sets those of a new file.
#pragma once

#include <sys/stat.h>

namespace tunedex {

// Copies mode, access-control list and user attributes (user.*) from the open file `from`, whose status is
// `old`, to the open file `to`; also owner and group as far as the system allows. Returns false when the file
// system or the system refuses one of the first three. Raises errors 57, 61 and the like for other failures.
bool CopyPermissions(int from, const struct stat& old, int to);

// Gives `file`, an open file that was created in `folder` with a narrower mode, the permissions of a file
// created there with mode 0666: the folder's default access-control list if it has one, otherwise 0666 minus
// the umask. `folder` may be an O_PATH descriptor. Returns false on failure.
bool GiveNewFilePermissions(int file, int folder);

} // namespace tunedex
