#include "host/Work.h"

#include "host/Failure.h"

#import <Foundation/Foundation.h>

#include <cstdint>
#include <future>
#include <mutex>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace host {
namespace {

struct Queue {
    std::mutex mutex;
    std::vector<std::function<void()>> work;
    // Readable while there is work, so that a sleeping run loop wakes up.
    int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

Queue &queue() {
    static auto &shared = *new Queue;
    return shared;
}

std::vector<std::function<void()>> takeAll() {
    const std::lock_guard lock(queue().mutex);
    std::uint64_t ignored = 0;
    (void)!read(queue().wake, &ignored, sizeof ignored);
    return std::exchange(queue().work, {});
}

} // namespace
} // namespace host

@interface HostWorkWatcher : NSObject <RunLoopEvents>
@end

@implementation HostWorkWatcher

- (void)receivedEvent:(void *)data type:(RunLoopEventType)type extra:(void *)extra forMode:(NSString *)mode {
    host::doWork();
}

@end

namespace host {

// Asks the system, because NSThread would make an object for a thread it does not know.
bool isMainThread() {
    return gettid() == getpid();
}

void later(std::function<void()> work) {
    const std::lock_guard lock(queue().mutex);
    queue().work.push_back(std::move(work));
    const std::uint64_t one = 1;
    (void)!write(queue().wake, &one, sizeof one);
}

void onMain(const std::function<void()> &work) {
    if (isMainThread()) {
        work();
        return;
    }
    std::promise<void> done;
    later([&] {
        work();
        done.set_value();
    });
    done.get_future().wait();
}

void watchForWork() {
    static HostWorkWatcher *watcher = nil;
    if (watcher)
        return;
    if (queue().wake < 0)
        fail("no eventfd for the main run loop");
    watcher = [HostWorkWatcher new];
    void *descriptor = reinterpret_cast<void *>(static_cast<std::intptr_t>(queue().wake));
    [[NSRunLoop mainRunLoop] addEvent:descriptor type:ET_RDESC watcher:watcher forMode:NSDefaultRunLoopMode];
}

bool doWork() {
    const std::vector<std::function<void()>> all = takeAll();
    for (const auto &work : all) {
        @autoreleasepool {
            work();
        }
    }
    return !all.empty();
}

} // namespace host
