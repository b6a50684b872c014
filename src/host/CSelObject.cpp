#include "host/CSelObject.h"

#include <algorithm>

CRuntimeClass CSelObject::classCSelObject{"CSelObject", sizeof(CSelObject), 0,
                                          &seisplot::CreateObjectOf<CSelObject>,
                                          RUNTIME_CLASS(CObject)};

CRuntimeClass* CSelObject::GetRuntimeClass() const {
    return &classCSelObject;
}

CSelObject::CSelObject(const CSelObject& other)
    : CObject(other),
      m_details(other.m_details ? std::make_unique<Details>(*other.m_details) : nullptr) {}

CSelObject::Details& CSelObject::Writable() {
    if (!m_details) {
        m_details = std::make_unique<Details>();
    }
    return *m_details;
}

void CSelObject::SetName(CString name) {
    if (m_details || !name.IsEmpty()) {
        Writable().name = std::move(name);
    }
}

CString CSelObject::GetName() const {
    return m_details ? m_details->name : CString();
}

CSelObject CSelObject::operator=(const CSelObject& other) {
    AssignSelection(other);
    return *this;
}

void CSelObject::AssignSelection(const CSelObject& other) {
    if (this != &other) {
        m_details = other.m_details ? std::make_unique<Details>(*other.m_details) : nullptr;
    }
}

void CSelObject::Select(unsigned short view) {
    Details& details = Writable();
    if (view < kLowViews) {
        details.lowViews |= std::uint64_t{1} << view;
        return;
    }
    std::vector<unsigned short>& high = details.highViews;
    const auto at = std::lower_bound(high.begin(), high.end(), view);
    if (at == high.end() || *at != view) {
        high.insert(at, view);
    }
}

void CSelObject::Unselect(unsigned short view) {
    if (!m_details) {
        return;
    }
    if (view < kLowViews) {
        m_details->lowViews &= ~(std::uint64_t{1} << view);
        return;
    }
    std::vector<unsigned short>& high = m_details->highViews;
    const auto at = std::lower_bound(high.begin(), high.end(), view);
    if (at != high.end() && *at == view) {
        high.erase(at);
    }
}

int CSelObject::IsSelected(unsigned short view) const {
    if (!m_details) {
        return 0;
    }
    if (view < kLowViews) {
        return (m_details->lowViews >> view) & 1u ? 1 : 0;
    }
    const std::vector<unsigned short>& high = m_details->highViews;
    return std::binary_search(high.begin(), high.end(), view) ? 1 : 0;
}

void CSelObject::Change(unsigned short view) {
    if (IsSelected(view)) {
        Unselect(view);
    } else {
        Select(view);
    }
}

void CSelObject::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        std::vector<WORD> views;
        if (m_details) {
            for (unsigned v = 0; v < kLowViews; ++v) {
                if ((m_details->lowViews >> v) & 1u) {
                    views.push_back(static_cast<WORD>(v));
                }
            }
            views.insert(views.end(), m_details->highViews.begin(), m_details->highViews.end());
        }
        ar << GetName() << static_cast<WORD>(views.size());
        for (WORD v : views) {
            ar << v;
        }
        return;
    }
    CString name;
    WORD count = 0;
    ar >> name >> count;
    seisplot::CheckCount(ar, count, sizeof(WORD));
    std::uint64_t low = 0;
    std::vector<unsigned short> high;
    for (WORD i = 0; i < count; ++i) {
        WORD view = 0;
        ar >> view;
        if (view < kLowViews) {
            low |= std::uint64_t{1} << view;
        } else {
            high.push_back(view);
        }
    }
    std::sort(high.begin(), high.end());
    high.erase(std::unique(high.begin(), high.end()), high.end());
    if (name.IsEmpty() && low == 0 && high.empty()) {
        m_details.reset();
        return;
    }
    Details& details = Writable();
    details.name = std::move(name);
    details.lowViews = low;
    details.highViews = std::move(high);
}

void CSelObject::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "name: " << GetName() << "\n";
}
