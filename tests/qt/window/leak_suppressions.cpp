// What LeakSanitizer leaves out when the tests are built with it.

// The speech library leaks a few bytes of GLib's each time it finds no service. Fast unwinding ends at GLib; slow
// unwinding, which would name the library, makes these tests ten times slower. Our own code uses no GLib.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the sanitizer's own
extern "C" const char* __lsan_default_suppressions() { return "leak:g_malloc\n"; }
