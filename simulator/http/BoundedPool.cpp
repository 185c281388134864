#include "simulator/http/BoundedPool.h"

namespace sim {

BoundedPool::BoundedPool(std::size_t threads, std::size_t waiting) : _waiting(waiting) {
    for (std::size_t i = 0; i < threads; i++)
        _threads.emplace_back([this] { work(); });
}

BoundedPool::~BoundedPool() {
    shutdown();
}

void BoundedPool::enqueue(std::function<void()> task) {
    {
        std::unique_lock lock(_mutex);
        _taken.wait(lock, [this] { return _closing || _tasks.size() < _waiting; });
        _tasks.push_back(std::move(task)); // also when closing: the task owns a socket that it must close
    }
    _added.notify_one();
}

void BoundedPool::shutdown() {
    {
        const std::lock_guard lock(_mutex);
        _closing = true;
    }
    _added.notify_all();
    _taken.notify_all();
    for (std::thread &thread : _threads) {
        if (thread.joinable())
            thread.join();
    }
}

void BoundedPool::work() {
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock lock(_mutex);
            _added.wait(lock, [this] { return _closing || !_tasks.empty(); });
            if (_tasks.empty())
                return;
            task = std::move(_tasks.front());
            _tasks.pop_front();
        }
        _taken.notify_one();
        task();
    }
}

} // namespace sim
