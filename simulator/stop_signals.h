#pragma once

namespace simulator {

// Makes SIGINT, SIGTERM and SIGHUP visible to poll(), so that the program can clean up before it ends. At most one
// object may exist.
class StopSignals {
public:
    // Throws std::system_error when the system gives no pipe.
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    // Readable from the first signal on.
    int descriptor() const { return readEnd_; }

private:
    int readEnd_ = -1;
    int writeEnd_ = -1;
};

}  // namespace simulator
