// File system queries and small changes. Paths are native bytes.
#pragma once

#include "StopTest.h"

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace tunedex {

// Whether the path is an existing folder. Required: the empty path is the current folder and exists. Raises
// error 52 when the lookup fails for any reason but a missing path (no permission, a link loop, a name too
// long, a NUL).
bool FolderExists(const std::string& path);

// Whether the path exists and is not a folder. Raises the error of a lookup that fails for any reason but a
// missing path.
bool FileExists(const std::string& path);

// The path from the root, without "." and "..". Links stay as they are named, except one that ".." leaves
// again. A path that cannot be made absolute (the current folder is gone) is returned as it is.
std::string AbsolutePath(const std::string& path);

// Creates one folder. Raises errors 61, 75, 76 and the like.
void CreateFolder(const std::string& path);

// Creates the missing folders of `folderPrefix` (a path that ends in a separator), outermost first. Raises
// the errors of FolderExists and CreateFolder.
void CreateFolders(const std::string& folderPrefix);

// Writes all bytes to an open file. Waits on a non-blocking descriptor that is full (pipe, stopped terminal),
// calling `stop` before the wait and about every 20 ms. Returns false when `stop` ended the wait; part of the
// bytes may then be written. Raises errors 61, 57 and the like; a pipe whose reader has gone raises 57 or
// counts as stopped.
enum class BrokenPipe { Raises, Stops };
bool WriteWhole(int descriptor, std::string_view bytes, const StopTest& stop = {},
                BrokenPipe brokenPipe = BrokenPipe::Raises);

// Raises error 53 when the file does not exist.
void DeleteFile(const std::string& path);

// The names of the regular files in a folder, links followed, in directory order. Empty for a missing folder;
// any other failure raises its error.
std::vector<std::string> FileNamesIn(const std::string& folder);

// The mode of a name in an open folder, links followed; empty for a missing name or a dangling link. Raises
// any other error: a name that cannot be examined may still exist.
std::optional<mode_t> ModeBehindLinks(int folder, const char* name);

// Whether the user has permission to create files in this folder.
bool FolderIsWritable(const std::string& path);

// The path of the running program with links resolved, and its folder with a trailing separator.
std::string RunningProgram();
std::string RunningProgramFolder();

} // namespace tunedex
