#pragma once
// Worker threads whose failures reach the thread that waits for them. A worker that raises
// stops the others; Join() then raises the first failure on the waiting thread as the
// framework exception it stands for, so callers handle one kind of error whatever thread it
// came from.

#include <atomic>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace seisplot {

class WorkerThreads {
public:
    using Body = std::function<void(std::stop_token)>;

    // Starts `count` threads (at least one), each running `body` until it returns or is asked
    // to stop. A thread that cannot start stops and joins those already running, then raises
    // CResourceException*.
    WorkerThreads(unsigned count, const Body& body);
    WorkerThreads(const WorkerThreads&) = delete;
    WorkerThreads& operator=(const WorkerThreads&) = delete;
    // Asks every worker to stop and joins them; a failure not collected by Join() is dropped.
    ~WorkerThreads();

    // The worker count for `requested` threads (0: one per processor) and `tasks` tasks: at
    // least one, at most one per task.
    static unsigned CountFor(unsigned requested, std::size_t tasks);

    void RequestStop() { m_stop.request_stop(); }
    // Whether a worker has raised (the waiting thread then stops waiting for results).
    bool Failed() const { return m_failed.load(); }
    // Joins every worker, then raises the first failure: a framework exception as it was
    // thrown, std::bad_alloc as CMemoryException*, anything else as CResourceException*.
    void Join();

private:
    void Run();

    const Body m_body;
    std::stop_source m_stop; // one for every worker
    std::mutex m_mutex;
    std::exception_ptr m_failure;
    std::atomic<bool> m_failed{false};
    std::vector<std::jthread> m_threads; // last: the workers go before what they use
};

} // namespace seisplot
