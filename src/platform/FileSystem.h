// Questions to the file system and small changes in it. Paths are native, as bytes.
#pragma once

#include "StopTest.h"

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace tunedex {

// Whether the path is an existing folder; an empty path is the current folder and exists. Raises error 52
// when the question itself fails for any cause but "not there" (no permission, a loop of links, a name too
// long, a NUL).
bool FolderExists(const std::string& path);

// Whether the path is an existing file (anything but a folder). Raises the error of a failed look-up that is
// not "not there".
bool FileExists(const std::string& path);

// Creates one folder. Raises errors 61, 75, 76 and the like.
void CreateFolder(const std::string& path);

// Creates every folder on the way to `folderPrefix` (a path that ends in a separator) that is not there,
// outermost first. Raises the errors of FolderExists and CreateFolder.
void CreateFolders(const std::string& folderPrefix);

// Writes all the bytes to an open file. A non-blocking descriptor that takes no more (a full pipe, a stopped
// terminal) is waited for; `stop` is asked before and about every 20 ms of such a wait. Returns false when it
// ended the wait: part of the bytes may then be written. Raises errors 61, 57 and the like.
bool WriteWhole(int descriptor, std::string_view bytes, const StopTest& stop = {});

// Removes a file. Raises error 53 when it is not there.
void DeleteFile(const std::string& path);

// The names of the files in a folder (folders left out), as the directory returns them. A folder
// that does not exist has none; any other failure raises its error.
std::vector<std::string> FileNamesIn(const std::string& folder);

// The kind and permissions of what a name in an open folder stands for, links followed; nothing for a name
// that is gone or a link to nothing. Raises the error of any other failure: that something cannot be looked
// at does not mean that it is not there.
std::optional<mode_t> ModeBehindLinks(int folder, const char* name);

// Whether the user may create files in this folder.
bool FolderIsWritable(const std::string& path);

// The running program's own path with links resolved, and the folder it is in (with its separator).
std::string RunningProgram();
std::string RunningProgramFolder();

} // namespace tunedex
