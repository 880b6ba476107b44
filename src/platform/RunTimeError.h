// The one exception type of the program: a number with its description, as messages and the error log print
// them.
#pragma once

#include <exception>
#include <string>

namespace tunedex {

// The run-time errors the program knows. The values are printed and must not change.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceInputOutput = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    TooManyFiles = 67,
    PathFileAccess = 75,
    PathNotFound = 76,
};

class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(ErrorNumber number);

    int Number() const { return static_cast<int>(number_); }
    bool Is(ErrorNumber number) const { return number_ == number; }
    // The description for messages, "Path not found" say; plain ASCII.
    const char* Description() const;
    const char* what() const noexcept override { return Description(); }

  private:
    ErrorNumber number_;
};

// The exception being handled as an error: itself, or error 7 for want of memory. Any other is thrown on.
RunTimeError CaughtError();

// What the failed system call was about: the same errno means different things for a file and for a folder.
enum class FileTask {
    ReadFile,   // opening, measuring or reading a file
    WriteFile,  // opening for output, writing, renaming into place: what is missing then is the folder
    UseFolder,  // listing or creating a folder
    TestFolder, // asking whether a folder exists
};

// The error that stands for a failed system call. `errorCode` is errno as the call left it.
RunTimeError ErrorFromErrno(int errorCode, FileTask task);

} // namespace tunedex
