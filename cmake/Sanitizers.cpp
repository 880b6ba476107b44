// What the sanitizers are told, whatever environment a test gives the program. Only builds with sanitizers
// hold it.

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizers' own names

// A status of its own: a test that allows for a run that fails must not take a finding for one. Strings are
// not checked to their ends (strict_string_checks): the keyboard library copies pieces of what the X server
// sent, which has none.
const char* __asan_default_options() {
    return "exitcode=99:detect_stack_use_after_return=1:check_initialization_order=1:print_suppressions=0";
}

const char* __ubsan_default_options() {
    return "exitcode=99:print_stacktrace=1";
}

// What other people's libraries keep until the end:
//   libdbus-1   the connection to the desktop's bus, which Qt's X platform opens and never closes
const char* __lsan_default_suppressions() {
    return "leak:libdbus-1\n";
}

// NOLINTEND(bugprone-reserved-identifier)

} // extern "C"
