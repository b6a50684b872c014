#pragma once
// CSelObject: a named object with selection flags, one per 16-bit view number.
//
// Archive form: the name (string), a 16-bit count of the views whose flag is set, then each
// of those view numbers (16-bit) in increasing order.
//
// Most selectable objects are the points of long curves, which carry neither a name nor a
// flag: the name and flags live in a block of their own, made when the first of them is set,
// so an object without them costs one pointer beside its virtual table.

#include "platform/core/CObject.h"

#include <cstdint>
#include <memory>
#include <vector>

class CSelObject : public CObject {
public:
    CSelObject() = default;
    CSelObject(const CSelObject& other);
    // Assigns name and flags and returns a copy, as the host's callers expect.
    CSelObject operator=(const CSelObject& other);
    ~CSelObject() override = default;

    CRuntimeClass* GetRuntimeClass() const override;
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;

    void SetName(CString name);
    CString GetName() const;

    void Select(unsigned short view);
    void Unselect(unsigned short view);
    int IsSelected(unsigned short view) const;
    void Change(unsigned short view);
    // Whether the flag of any view is set.
    bool IsAnySelected() const {
        return m_details && (m_details->lowViews != 0 || !m_details->highViews.empty());
    }

    static CRuntimeClass classCSelObject;

protected:
    // Copies name and flags without the copy that operator= returns.
    void AssignSelection(const CSelObject& other);

private:
    static constexpr unsigned kLowViews = 64;

    struct Details {
        CString name;
        std::uint64_t lowViews = 0;            // views 0 to 63, one bit each
        std::vector<unsigned short> highViews; // views from 64 on, sorted
    };
    // The details, made when missing.
    Details& Writable();

    std::unique_ptr<Details> m_details; // null: no name and no flag
};
