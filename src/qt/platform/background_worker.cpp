#include "qt/platform/background_worker.h"

#include <pthread.h>

#include <condition_variable>
#include <csignal>
#include <deque>
#include <mutex>
#include <utility>

namespace corvane {

struct BackgroundWorker::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Task> tasks;
    std::stop_source stop;
    bool finished = false;

    void run();
};

namespace {

// A service that dies while we write to it must not end the program.
void ignoreBrokenPipes() {
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
}

}  // namespace

void BackgroundWorker::Shared::run() {
    ignoreBrokenPipes();
    std::unique_lock lock(mutex);
    while (true) {
        changed.wait(lock, [this] { return stop.stop_requested() || !tasks.empty(); });
        if (stop.stop_requested()) break;
        Task task = std::move(tasks.front());
        tasks.pop_front();
        lock.unlock();
        task(stop.get_token());
        task = nullptr;
        lock.lock();
    }
    finished = true;
    changed.notify_all();
}

BackgroundWorker::BackgroundWorker(std::size_t capacity, std::chrono::milliseconds farewell)
    : capacity_(capacity), farewell_(farewell), shared_(std::make_shared<Shared>()) {}

BackgroundWorker::~BackgroundWorker() {
    if (!thread_.joinable()) return;
    std::deque<Task> dropped;
    {
        const std::lock_guard lock(shared_->mutex);
        dropped.swap(shared_->tasks);
    }
    // Outside the lock: the running task's stop callbacks run in this call.
    shared_->stop.request_stop();
    std::unique_lock lock(shared_->mutex);
    shared_->changed.notify_all();
    const bool finished = shared_->changed.wait_for(lock, farewell_, [this] { return shared_->finished; });
    lock.unlock();
    if (finished) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

bool BackgroundWorker::post(Task task) {
    {
        const std::lock_guard lock(shared_->mutex);
        if (shared_->tasks.size() >= capacity_) return false;
        shared_->tasks.push_back(std::move(task));
    }
    shared_->changed.notify_all();
    if (!thread_.joinable()) thread_ = std::thread([shared = shared_] { shared->run(); });
    return true;
}

}  // namespace corvane
