#include "host/CSelObject.h"

#include <algorithm>

CRuntimeClass CSelObject::classCSelObject{"CSelObject", sizeof(CSelObject), 0,
                                          &seisplot::CreateObjectOf<CSelObject>,
                                          RUNTIME_CLASS(CObject)};

CRuntimeClass* CSelObject::GetRuntimeClass() const {
    return &classCSelObject;
}

CSelObject CSelObject::operator=(const CSelObject& other) {
    AssignSelection(other);
    return *this;
}

void CSelObject::AssignSelection(const CSelObject& other) {
    if (this != &other) {
        m_name = other.m_name;
        m_lowViews = other.m_lowViews;
        m_highViews = other.m_highViews;
    }
}

void CSelObject::Select(unsigned short view) {
    if (view < kLowViews) {
        m_lowViews |= std::uint64_t{1} << view;
        return;
    }
    const auto at = std::lower_bound(m_highViews.begin(), m_highViews.end(), view);
    if (at == m_highViews.end() || *at != view) {
        m_highViews.insert(at, view);
    }
}

void CSelObject::Unselect(unsigned short view) {
    if (view < kLowViews) {
        m_lowViews &= ~(std::uint64_t{1} << view);
        return;
    }
    const auto at = std::lower_bound(m_highViews.begin(), m_highViews.end(), view);
    if (at != m_highViews.end() && *at == view) {
        m_highViews.erase(at);
    }
}

int CSelObject::IsSelected(unsigned short view) const {
    if (view < kLowViews) {
        return (m_lowViews >> view) & 1u ? 1 : 0;
    }
    return std::binary_search(m_highViews.begin(), m_highViews.end(), view) ? 1 : 0;
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
        for (unsigned v = 0; v < kLowViews; ++v) {
            if ((m_lowViews >> v) & 1u) {
                views.push_back(static_cast<WORD>(v));
            }
        }
        views.insert(views.end(), m_highViews.begin(), m_highViews.end());
        ar << m_name << static_cast<WORD>(views.size());
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
    m_name = std::move(name);
    m_lowViews = low;
    m_highViews = std::move(high);
}

void CSelObject::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "name: " << m_name << "\n";
}
