#include "RunTimeError.h"

#include <cerrno>
#include <new>
#include <stdexcept>

namespace tunedex {

RunTimeError::RunTimeError(ErrorNumber number) : number_(number) {}

const char* RunTimeError::Description() const {
    switch (number_) {
    case ErrorNumber::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::OutOfMemory:
        return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::BadFileName:
        return "Bad file name or number";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::DiskFull:
        return "Disk full";
    case ErrorNumber::InputPastEnd:
        return "Input past end of file";
    case ErrorNumber::TooManyFiles:
        return "Too many files";
    case ErrorNumber::PathFileAccess:
        return "Path/File access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    case ErrorNumber::DeviceInputOutput:
        break;
    }
    return "Device I/O error";
}

RunTimeError CaughtError() {
    try {
        throw;
    } catch (const RunTimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RunTimeError(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) { // from a std::string longer than max_size()
        return RunTimeError(ErrorNumber::OutOfMemory);
    }
}

RunTimeError ErrorFromErrno(int errorCode, FileTask task) {
    if (task == FileTask::TestFolder) {
        // Required: a failed folder test is error 52 whatever errno is. Do not "fix".
        return RunTimeError(ErrorNumber::BadFileName);
    }
    switch (errorCode) {
    case ENOMEM:
        return RunTimeError(ErrorNumber::OutOfMemory);
    case EINVAL:
    case ENAMETOOLONG:
    case ELOOP:
        return RunTimeError(ErrorNumber::BadFileName);
    case ENOENT:
        return RunTimeError(task == FileTask::ReadFile ? ErrorNumber::FileNotFound
                                                       : ErrorNumber::PathNotFound);
    case ENOTDIR:
        return RunTimeError(ErrorNumber::PathNotFound);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return RunTimeError(ErrorNumber::PathFileAccess);
    case ENOSPC:
    case EDQUOT:
        return RunTimeError(ErrorNumber::DiskFull);
    case EMFILE:
    case ENFILE:
        return RunTimeError(ErrorNumber::TooManyFiles);
    default:
        return RunTimeError(ErrorNumber::DeviceInputOutput);
    }
}

} // namespace tunedex
