#pragma once
// CObject and its run-time class records: each serialisable class has one CRuntimeClass
// (class name, schema, base, creation function) and returns it from GetRuntimeClass.
// Records register themselves by name, so an object can be created from its class name.
//
// A class declares
//     static CRuntimeClass className;
//     CRuntimeClass* GetRuntimeClass() const override;
// and defines the record with seisplot::CreateObjectOf<Name> as its creation function.

#include "platform/core/CArchive.h"

#include <iosfwd>

class CObject;

struct CRuntimeClass {
    CRuntimeClass(LPCSTR className, int objectSize, UINT schema, CObject* (*create)(),
                  CRuntimeClass* baseClass);
    CRuntimeClass(const CRuntimeClass&) = delete;
    CRuntimeClass& operator=(const CRuntimeClass&) = delete;

    // A new object of this class (the caller owns it), or null when it is not creatable.
    CObject* CreateObject() const;
    BOOL IsDerivedFrom(const CRuntimeClass* baseClass) const;

    // The registered record of that name, or null.
    static CRuntimeClass* FromName(LPCSTR className);
    static CObject* CreateObject(LPCSTR className);

    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject* (*m_pfnCreateObject)();
    CRuntimeClass* m_pBaseClass;
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

// Diagnostic output, as the framework's dump context.
class CDumpContext {
public:
    explicit CDumpContext(std::ostream& out) : m_out(out) {}
    CDumpContext& operator<<(const char* text);
    CDumpContext& operator<<(const CString& text) { return *this << text.GetString(); }
    CDumpContext& operator<<(int value);
    CDumpContext& operator<<(unsigned int value);
    CDumpContext& operator<<(double value);

private:
    std::ostream& m_out;
};

class CObject {
public:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;

    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const {}
    virtual void Dump(CDumpContext& dc) const;

    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;
    BOOL IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF ? TRUE : FALSE; }

    static CRuntimeClass classCObject;
};

namespace seisplot {

template <class T> CObject* CreateObjectOf() {
    return new T;
}

} // namespace seisplot
