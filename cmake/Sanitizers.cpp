// Default options of the sanitizers, independent of the environment in which a test runs the program. Only
// sanitizer builds contain this file.

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier): names that the sanitizers define

// A distinct exit status: a test that expects a run to fail must not accept a finding instead. No
// strict_string_checks: the keyboard library copies unterminated pieces of the X server's messages.
const char* __asan_default_options() {
    return "exitcode=99:detect_stack_use_after_return=1:check_initialization_order=1:print_suppressions=0";
}

const char* __ubsan_default_options() {
    return "exitcode=99:print_stacktrace=1";
}

// Leaks of third-party libraries:
//   libdbus-1   the connection to the session bus, which Qt's xcb platform opens and never closes
const char* __lsan_default_suppressions() {
    return "leak:libdbus-1\n";
}

// NOLINTEND(bugprone-reserved-identifier)

} // extern "C"
