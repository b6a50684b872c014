#include "platform/core/WorkerThreads.h"

#include "platform/core/Exceptions.h"
#include "platform/core/FailureInjection.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

namespace seisplot {

WorkerThreads::WorkerThreads(unsigned count, const Body& body) : m_body(body) {
    count = std::max(count, 1u);
    m_threads.reserve(count);
    for (unsigned i = 0; i < count; ++i) {
        try {
            if (ShouldFail(FailurePoint::ThreadStart)) {
                throw std::system_error(
                    std::make_error_code(std::errc::resource_unavailable_try_again));
            }
            m_threads.emplace_back([this] { Run(); });
        } catch (const std::system_error&) {
            RequestStop();
            m_threads.clear(); // joins
            AfxThrowResourceException();
        }
    }
}

WorkerThreads::~WorkerThreads() {
    RequestStop();
    m_threads.clear();
    if (m_failure) {
        // A framework exception thrown by pointer and never collected is still ours to free.
        try {
            std::rethrow_exception(m_failure);
        } catch (CException* e) {
            e->Delete();
        } catch (...) {
        }
    }
}

unsigned WorkerThreads::CountFor(unsigned requested, std::size_t tasks) {
    const std::size_t wanted =
        requested == 0 ? std::max(1u, std::thread::hardware_concurrency()) : requested;
    return static_cast<unsigned>(
        std::clamp<std::size_t>(wanted, 1, std::max<std::size_t>(tasks, 1)));
}

void WorkerThreads::Run() {
    try {
        m_body(m_stop.get_token());
    } catch (...) {
        {
            const std::lock_guard lock(m_mutex);
            if (!m_failure) {
                m_failure = std::current_exception();
            } else {
                try {
                    throw;
                } catch (CException* e) {
                    e->Delete(); // only the first failure is reported
                } catch (...) {
                }
            }
        }
        m_failed = true;
        RequestStop();
    }
}

void WorkerThreads::Join() {
    for (std::jthread& t : m_threads) {
        if (t.joinable()) {
            t.join();
        }
    }
    std::exception_ptr failure;
    {
        const std::lock_guard lock(m_mutex);
        failure = std::exchange(m_failure, nullptr);
    }
    if (!failure) {
        return;
    }
    try {
        std::rethrow_exception(failure);
    } catch (CException*) {
        throw;
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    } catch (...) {
        AfxThrowResourceException();
    }
}

} // namespace seisplot
