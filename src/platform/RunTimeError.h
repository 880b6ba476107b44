// The only exception type of the program: a number and its description, as messages and the error log print
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
    // The description for messages, for example "Path not found"; plain ASCII.
    const char* Description() const;
    const char* what() const noexcept override { return Description(); }

  private:
    ErrorNumber number_;
};

// Call inside a catch block. Returns a RunTimeError unchanged and std::bad_alloc or std::length_error as
// error 7; rethrows any other exception.
RunTimeError CaughtError();

// What the failed system call was for: the error number depends on it.
enum class FileTask {
    ReadFile,   // opening, measuring or reading a file
    WriteFile,  // opening for output, writing, renaming; ENOENT means a missing folder
    UseFolder,  // listing or creating a folder
    TestFolder, // asking whether a folder exists: every failure is error 52
};

// Maps errno, as the failed call left it, to an error.
RunTimeError ErrorFromErrno(int errorCode, FileTask task);

} // namespace tunedex
