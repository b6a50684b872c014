#pragma once
// What a handle stands for: an object of the layer, owned through its handle until the
// handle is closed.

#include "platform/avi/SystemTypes.h"

namespace seisplot {

class KernelObject {
public:
    KernelObject() = default;
    KernelObject(const KernelObject&) = delete;
    KernelObject& operator=(const KernelObject&) = delete;
    virtual ~KernelObject() = default;
};

inline HANDLE ToHandle(KernelObject* object) {
    return object;
}

// The object behind `handle` when it is one of kind T; null for null, invalid or other handles.
template <class T> T* FromHandle(HANDLE handle) {
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return dynamic_cast<T*>(static_cast<KernelObject*>(handle));
}

} // namespace seisplot
