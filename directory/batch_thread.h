// A thread that carries out submitted jobs in batches: each batch has all the jobs that are waiting.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace corvane::directory {

template <class Job>
class BatchThread {
public:
    using Work = std::function<void(std::vector<Job>& batch)>;

    // `makeWork` is called on the thread, and its result is destroyed there: connections belong to one thread.
    explicit BatchThread(std::function<Work()> makeWork)
        : thread_([this, make = std::move(makeWork)] { run(make()); }) {}
    ~BatchThread() {
        end();
        thread_.join();
    }
    // Ends the thread when all submitted jobs are done; takes no more. False if they take longer than the given time.
    bool stop(std::chrono::milliseconds patience) {
        end();
        std::unique_lock lock(mutex_);
        return wake_.wait_for(lock, patience, [this] { return ended_; });
    }
    BatchThread(const BatchThread&) = delete;
    BatchThread& operator=(const BatchThread&) = delete;

    // From any thread. Drops the job after stop().
    void submit(Job job) {
        {
            const std::lock_guard lock(mutex_);
            if (!ending_) waiting_.push_back(std::move(job));
        }
        wake_.notify_all();
    }

private:
    void end() {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        wake_.notify_all();
    }
    void run(const Work& work) {
        loop(work);
        const std::lock_guard lock(mutex_);
        ended_ = true;
        wake_.notify_all();
    }
    void loop(const Work& work) {
        std::unique_lock lock(mutex_);
        for (;;) {
            wake_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
            if (waiting_.empty()) return;
            std::vector<Job> batch = std::exchange(waiting_, {});
            lock.unlock();
            work(batch);
            lock.lock();
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::vector<Job> waiting_;
    bool ending_ = false;
    bool ended_ = false;
    std::thread thread_;
};

}  // namespace corvane::directory
