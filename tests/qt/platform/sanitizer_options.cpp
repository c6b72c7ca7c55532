// Read by the sanitizers where the tests are built with them; nobody calls these otherwise.

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizers' own.

// The speech library loses a few bytes of its own each time it finds no service. Only the slow way of walking the stack
// sees who asked for them.
extern "C" const char* __lsan_default_suppressions() { return "leak:spd_open2\n"; }
extern "C" const char* __asan_default_options() { return "fast_unwind_on_malloc=0"; }

// NOLINTEND(bugprone-reserved-identifier)
