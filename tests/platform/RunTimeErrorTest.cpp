#include "RunTimeError.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

namespace tunedex {
namespace {

TEST(RunTimeError, HasTheNumberAndDescriptionThatMessagesPrint) {
    const std::vector<std::pair<int, std::string>> table = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {67, "Too many files"},
        {75, "Path/File access error"},
        {76, "Path not found"},
    };
    for (const auto& [number, description] : table) {
        const RunTimeError error(static_cast<ErrorNumber>(number));
        EXPECT_EQ(error.Number(), number);
        EXPECT_EQ(error.Description(), description);
        EXPECT_EQ(error.what(), description);
    }
}

TEST(ErrorFromErrno, MapsEachErrnoByTask) {
    struct Row {
        int errorCode;
        int readFile;
        int writeFile;
        int useFolder;
    };
    const std::vector<Row> rows = {
        {EINVAL, 52, 52, 52},  {ENAMETOOLONG, 52, 52, 52},
        {ELOOP, 52, 52, 52},   {ENOENT, 53, 76, 76}, // writing creates the file, so its folder is missing
        {ENOTDIR, 76, 76, 76}, {EACCES, 75, 75, 75},
        {EPERM, 75, 75, 75},   {EROFS, 75, 75, 75},
        {EISDIR, 75, 75, 75},  {ENOSPC, 61, 61, 61},
        {EDQUOT, 61, 61, 61},  {EMFILE, 67, 67, 67},
        {ENFILE, 67, 67, 67},  {EIO, 57, 57, 57},
        {EBADF, 57, 57, 57},   {ENXIO, 57, 57, 57},
        {ETXTBSY, 57, 57, 57}, {0, 57, 57, 57},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ErrorFromErrno(row.errorCode, FileTask::ReadFile).Number(), row.readFile) << row.errorCode;
        EXPECT_EQ(ErrorFromErrno(row.errorCode, FileTask::WriteFile).Number(), row.writeFile)
            << row.errorCode;
        EXPECT_EQ(ErrorFromErrno(row.errorCode, FileTask::UseFolder).Number(), row.useFolder)
            << row.errorCode;
        // A failed folder test is error 52 whatever errno is.
        EXPECT_EQ(ErrorFromErrno(row.errorCode, FileTask::TestFolder).Number(), 52) << row.errorCode;
    }
}

} // namespace
} // namespace tunedex
