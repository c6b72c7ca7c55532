// Options that the sanitizers read when the tests are built with them.

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizers' own.

// The speech library leaks a few bytes each time it finds no service. Only slow unwinding finds the library in the
// stack.
extern "C" const char* __lsan_default_suppressions() { return "leak:spd_open2\n"; }
extern "C" const char* __asan_default_options() { return "fast_unwind_on_malloc=0"; }

// Qt, OpenSSL and GLib are not built with ThreadSanitizer, which therefore sees none of their locks: what they hand
// from thread to thread by themselves is left out. What our code does on any thread is watched.
extern "C" const char* __tsan_default_options() { return "ignore_noninstrumented_modules=1"; }

// NOLINTEND(bugprone-reserved-identifier)
