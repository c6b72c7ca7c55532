// A shared library that is loaded when it is first needed, so that the start does not wait for it.
#pragma once

#include <dlfcn.h>

namespace corvane {

// It stays loaded. Its functions are called through pointers of the types that its own headers declare:
//
//     const LateLibrary pulse{"libpulse-simple.so.0"};
//     const auto drain = pulse.function<decltype(pa_simple_drain)>("pa_simple_drain");
class LateLibrary {
public:
    // `name` as the dynamic loader knows it.
    explicit LateLibrary(const char* name) : handle_(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}

    // Null if this machine does not have the library, or the library not the function.
    template <class Function>
    Function* function(const char* name) const {
        return handle_ ? reinterpret_cast<Function*>(dlsym(handle_, name)) : nullptr;
    }

private:
    void* handle_;
};

}  // namespace corvane
