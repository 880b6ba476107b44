// What the sanitizers are told, whatever environment a test gives the program. Only builds with sanitizers
// hold it.

extern "C" {

// A status of its own: a test that allows for a run that fails must not take a finding for one.
const char* __asan_default_options() {
    return "exitcode=99:detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1";
}

const char* __ubsan_default_options() {
    return "exitcode=99:print_stacktrace=1";
}

} // extern "C"
