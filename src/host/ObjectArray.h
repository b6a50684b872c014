#pragma once
// ObjectArray: the storage behind the host's collections of selectable objects (records,
// spectra). It holds its objects in one contiguous array of exactly the count, with no spare
// capacity, so every addition or removal builds the new array aside and swaps it in: an
// operation that runs out of memory raises CMemoryException (by pointer, as the framework
// does) and leaves the objects and count as they were.
//
// T is a CSelObject with a default constructor, a copy constructor, an assignment and a
// Serialize. Numbering follows the collections: 1-based everywhere except CheckedAt, which
// counts from 0.
//
// Archive form (Serialize): a 16-bit version word (1), the number of objects (32-bit
// unsigned), then each object's own archive form in order.

#include "platform/core/CArchive.h"
#include "platform/core/Exceptions.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>
#include <vector>

namespace seisplot {

template <class T> class ObjectArray {
public:
    using Items = std::vector<T>;
    using const_iterator = typename Items::const_iterator;
    using iterator = typename Items::iterator;

    // The version word every collection writes.
    static constexpr WORD kVersion = 1;

    ObjectArray() = default;
    ObjectArray(const ObjectArray& other) : m_items(CopyOf(other.m_items)) {}
    ObjectArray(ObjectArray&& other) noexcept = default;
    // Strong guarantee: the copy is complete before the old objects go.
    ObjectArray& operator=(const ObjectArray& other) {
        if (this != &other) {
            Items copy = CopyOf(other.m_items);
            m_items.swap(copy);
        }
        return *this;
    }
    ObjectArray& operator=(ObjectArray&& other) noexcept = default;
    ~ObjectArray() = default;

    unsigned long Count() const { return static_cast<unsigned long>(m_items.size()); }
    bool Empty() const { return m_items.empty(); }
    const_iterator begin() const { return m_items.begin(); }
    const_iterator end() const { return m_items.end(); }
    iterator begin() { return m_items.begin(); }
    iterator end() { return m_items.end(); }

    // The objects as one array; null when there are none. The host's interface hands out
    // modifiable objects from a const collection, hence the const_cast.
    T* Data() const { return m_items.empty() ? nullptr : const_cast<T*>(m_items.data()); }
    // Object i (from 1); null outside 1 ... count.
    T* Get(unsigned long i) const {
        if (i == 0 || i > m_items.size()) {
            return nullptr;
        }
        return const_cast<T*>(&m_items[i - 1]);
    }
    // Object i (from 1), unchecked: callers pass valid numbers.
    T& Ref(unsigned long i) const {
        assert(i >= 1 && i <= m_items.size());
        return const_cast<T&>(m_items[i - 1]);
    }
    // Object i (from 0). An index at or beyond the count raises RangeError (by value)
    // carrying it, or 0xFFFFFFFF when it does not fit in 32 bits.
    template <class RangeError> T& CheckedAt(unsigned long i) {
        if (i >= m_items.size()) {
            constexpr unsigned long kWidest = std::numeric_limits<std::uint32_t>::max();
            throw RangeError(static_cast<std::uint32_t>(i > kWidest ? kWidest : i));
        }
        return m_items[i];
    }

    // Set or clear the flag `view` of object i (from 1); a number outside 1 ... count does
    // nothing.
    void Select(unsigned long i, unsigned short view) {
        if (T* item = Get(i)) {
            item->Select(view);
        }
    }
    void Unselect(unsigned long i, unsigned short view) {
        if (T* item = Get(i)) {
            item->Unselect(view);
        }
    }
    void UnSelectAll(unsigned short view) {
        for (T& item : m_items) {
            item.Unselect(view);
        }
    }
    unsigned long CountSelected(unsigned char view) const {
        return static_cast<unsigned long>(
            std::count_if(m_items.begin(), m_items.end(),
                          [view](const T& item) { return item.IsSelected(view); }));
    }

    // The number (from 1) of the first object that `matches`; 0 when none does.
    template <class Match> unsigned long FindFirst(Match matches) const {
        for (std::size_t k = 0; k < m_items.size(); ++k) {
            if (matches(m_items[k])) {
                return static_cast<unsigned long>(k + 1);
            }
        }
        return 0;
    }

    // The new number of object i after the n objects numbered in `removed` (in any order)
    // were deleted: 0 when i is one of them, else i less the count of removed numbers below
    // it.
    static unsigned long Remap(const unsigned long* removed, unsigned long n, unsigned long i) {
        unsigned long below = 0;
        for (unsigned long k = 0; k < n; ++k) {
            if (removed[k] == i) {
                return 0;
            }
            if (removed[k] < i) {
                ++below;
            }
        }
        return i - below;
    }

    // Appends a copy. `item` may be one of ours: it is copied before the old array goes.
    void Add(const T& item) {
        Items grown = Exact(m_items.size() + 1, [&](Items& items) {
            items.insert(items.end(), m_items.begin(), m_items.end());
            items.push_back(item);
        });
        m_items.swap(grown);
    }
    // Removes object i (from 1), the later ones moving down one place; 0, or 1 (nothing
    // changes) for a number outside 1 ... count.
    int Remove(unsigned long i) {
        if (i == 0 || i > m_items.size()) {
            return 1;
        }
        const auto gone = m_items.begin() + static_cast<std::ptrdiff_t>(i - 1);
        Items shrunk = Exact(m_items.size() - 1, [&](Items& items) {
            items.insert(items.end(), m_items.begin(), gone);
            items.insert(items.end(), gone + 1, m_items.end());
        });
        m_items.swap(shrunk);
        return 0;
    }
    // Removes every object whose flag `view` is set, keeping the order of the others; nothing
    // changes when none is set.
    void DeleteSelected(unsigned short view) {
        std::size_t survivors = 0;
        for (const T& item : m_items) {
            survivors += item.IsSelected(view) ? 0 : 1;
        }
        if (survivors == m_items.size()) {
            return;
        }
        // One pass: a selected object is skipped, any other copied to the next place of the
        // new array, sized exactly.
        Items kept = Exact(survivors, [&](Items& items) {
            for (const T& item : m_items) {
                if (!item.IsSelected(view)) {
                    items.push_back(item);
                }
            }
        });
        m_items.swap(kept);
    }
    // Appends copies of all objects of `other`, in order; a += a doubles a.
    void Append(const ObjectArray& other) {
        Items grown = Exact(m_items.size() + other.m_items.size(), [&](Items& items) {
            items.insert(items.end(), m_items.begin(), m_items.end());
            items.insert(items.end(), other.m_items.begin(), other.m_items.end());
        });
        m_items.swap(grown);
    }

    // Destroys every object and releases the array.
    void Free() { Items().swap(m_items); }
    // Replaces the objects by n default objects.
    void Alloc(unsigned long n) {
        Items fresh = Exact(n, [&](Items& items) { items.resize(n); });
        m_items.swap(fresh);
    }
    // Resizes to exactly n: the surplus destroyed from the end, default objects appended.
    void Resize(unsigned long n) {
        const std::size_t kept = std::min<std::size_t>(n, m_items.size());
        Items resized = Exact(n, [&](Items& items) {
            items.insert(items.end(), m_items.begin(),
                         m_items.begin() + static_cast<std::ptrdiff_t>(kept));
            items.resize(n);
        });
        m_items.swap(resized);
    }

    // Storing writes kVersion and sets `version` to it. Loading frees the objects first, reads
    // the version (not used: there has only ever been one) and the count, and refuses a count
    // that the bytes left cannot hold at `leastItemBytes` each before it allocates anything.
    // The objects are read aside, so an archive that ends early leaves the array empty
    // rather than holding default objects; the archive exception goes through.
    void Serialize(CArchive& ar, WORD& version, ULONGLONG leastItemBytes) {
        if (ar.IsStoring()) {
            version = kVersion;
            ar << version << static_cast<DWORD>(m_items.size());
            for (T& item : m_items) {
                item.Serialize(ar);
            }
            return;
        }
        Free();
        WORD stored = 0;
        DWORD count = 0;
        ar >> stored >> count;
        CheckCount(ar, count, leastItemBytes);
        ObjectArray read;
        read.Alloc(count);
        for (T& item : read.m_items) {
            item.Serialize(ar);
        }
        m_items.swap(read.m_items);
    }

private:
    // Builds a new array of exactly `size` objects with `fill`, turning an allocation failure
    // into the framework's memory exception.
    template <class Fill> static Items Exact(std::size_t size, Fill&& fill) {
        try {
            Items items;
            items.reserve(size);
            fill(items);
            assert(items.size() == size);
            return items;
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        } catch (const std::length_error&) {
            AfxThrowMemoryException();
        }
    }
    static Items CopyOf(const Items& source) {
        return Exact(source.size(), [&](Items& items) {
            items.insert(items.end(), source.begin(), source.end());
        });
    }

    Items m_items;
};

} // namespace seisplot
