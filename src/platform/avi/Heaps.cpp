#include "platform/avi/Heaps.h"

#include "platform/avi/KernelObject_p.h"

#include <cstdlib>
#include <mutex>
#include <new>
#include <unordered_set>

namespace seisplot {
namespace {

class Heap final : public KernelObject {
public:
    ~Heap() override {
        for (void* block : m_blocks) {
            std::free(block);
        }
    }

    void* Allocate(std::size_t bytes, bool zero) {
        void* block = zero ? std::calloc(1, bytes) : std::malloc(bytes);
        if (block != nullptr) {
            const std::lock_guard lock(m_mutex);
            m_blocks.insert(block);
        }
        return block;
    }

    bool Free(void* block) {
        const std::lock_guard lock(m_mutex);
        if (m_blocks.erase(block) == 0) {
            return false;
        }
        std::free(block);
        return true;
    }

private:
    std::mutex m_mutex;
    std::unordered_set<void*> m_blocks;
};

} // namespace
} // namespace seisplot

HANDLE HeapCreate(DWORD /*options*/, SIZE_T /*initialSize*/, SIZE_T /*maximumSize*/) {
    return seisplot::ToHandle(new (std::nothrow) seisplot::Heap);
}

LPVOID HeapAlloc(HANDLE heap, DWORD flags, SIZE_T bytes) {
    auto* h = seisplot::FromHandle<seisplot::Heap>(heap);
    return h != nullptr ? h->Allocate(bytes == 0 ? 1 : bytes, (flags & HEAP_ZERO_MEMORY) != 0)
                        : nullptr;
}

BOOL HeapFree(HANDLE heap, DWORD /*flags*/, LPVOID block) {
    auto* h = seisplot::FromHandle<seisplot::Heap>(heap);
    return h != nullptr && h->Free(block);
}

BOOL HeapDestroy(HANDLE heap) {
    auto* h = seisplot::FromHandle<seisplot::Heap>(heap);
    delete h;
    return h != nullptr;
}
