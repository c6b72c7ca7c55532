// The thread that something belongs to.
#pragma once

#include <cstdlib>
#include <iostream>
#include <thread>

namespace corvane {

// Belongs to the thread that makes it. The fakes check it: in the program everything that they stand for may be used on
// the user-interface thread only.
class OwnThread {
public:
    // Ends the test program on any other thread.
    void check() const {
        if (std::this_thread::get_id() == id_) return;
        std::cerr << "used from another thread than its own\n";
        std::abort();
    }

private:
    std::thread::id id_ = std::this_thread::get_id();
};

}  // namespace corvane
