#include "platform/core/WorkerThreads.h"

#include "platform/core/Exceptions.h"
#include "platform/core/FailureInjection.h"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <stdexcept>

using seisplot::WorkerThreads;

namespace {

// Runs three workers of which the second raises `raise` once the others are waiting for the
// stop request; returns what Join raised, by kind.
template <class Raise> CString JoinFailure(Raise raise) {
    std::atomic<int> started{0};
    std::atomic<int> stopped{0};
    WorkerThreads workers(3, [&](std::stop_token stop) {
        if (started.fetch_add(1) == 1) {
            raise();
        }
        while (!stop.stop_requested()) {
            std::this_thread::yield();
        }
        ++stopped;
    });
    CString kind = "none";
    try {
        workers.Join();
    } catch (CMemoryException* e) {
        kind = "memory";
        e->Delete();
    } catch (CResourceException* e) {
        kind = "resource";
        e->Delete();
    }
    EXPECT_EQ(stopped.load(), 2); // the others were stopped, not abandoned
    return kind;
}

} // namespace

TEST(WorkerThreadsTest, AWorkerFailureStopsTheOthersAndReachesTheJoiningThread) {
    EXPECT_EQ(JoinFailure([] { AfxThrowMemoryException(); }), "memory");
    EXPECT_EQ(JoinFailure([] { throw std::bad_alloc(); }), "memory");
    EXPECT_EQ(JoinFailure([] { throw std::runtime_error("lost"); }), "resource");
    EXPECT_EQ(JoinFailure([] { AfxThrowResourceException(); }), "resource");
}

TEST(WorkerThreadsTest, AThreadThatCannotStartJoinsTheStartedOnesAndRaises) {
    std::atomic<int> finished{0};
    seisplot::FailAfter(seisplot::FailurePoint::ThreadStart, 2);
    bool raised = false;
    try {
        WorkerThreads workers(4, [&](std::stop_token stop) {
            while (!stop.stop_requested()) {
                std::this_thread::yield();
            }
            ++finished;
        });
    } catch (CResourceException* e) {
        raised = true;
        e->Delete();
    }
    seisplot::FailAfter(seisplot::FailurePoint::ThreadStart, -1);
    EXPECT_TRUE(raised);
    EXPECT_EQ(finished.load(), 2);
    // An uncollected failure is released with the workers (the sanitizer build sees a leak).
    WorkerThreads abandoned(1, [](std::stop_token) { AfxThrowMemoryException(); });
    EXPECT_EQ(WorkerThreads::CountFor(0, 1), 1u);
    EXPECT_EQ(WorkerThreads::CountFor(8, 3), 3u);
    EXPECT_EQ(WorkerThreads::CountFor(2, 0), 1u);
}
