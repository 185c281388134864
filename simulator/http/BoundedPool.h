// The server's threads: a fixed number, and a fixed number of connections waiting for one.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <httplib.h>
#include <mutex>
#include <thread>
#include <vector>

namespace sim {

/// cpp-httplib's own pool queues without end. This one lets the accepting thread wait when `waiting`
/// connections are queued, so that further clients wait in the kernel's short backlog.
class BoundedPool : public httplib::TaskQueue {
public:
    BoundedPool(std::size_t threads, std::size_t waiting);
    ~BoundedPool() override;
    BoundedPool(const BoundedPool &) = delete;
    BoundedPool &operator=(const BoundedPool &) = delete;

    void enqueue(std::function<void()> task) override;

    /// Finishes what is queued and joins the threads.
    void shutdown() override;

private:
    void work();

    std::size_t _waiting;
    bool _closing = false;
    std::mutex _mutex;
    std::condition_variable _added, _taken;
    std::deque<std::function<void()>> _tasks;
    std::vector<std::thread> _threads;
};

} // namespace sim
