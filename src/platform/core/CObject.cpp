#include "platform/core/CObject.h"

#include <cstring>
#include <map>
#include <ostream>
#include <string>

namespace {

std::map<std::string, CRuntimeClass*>& Registry() {
    static std::map<std::string, CRuntimeClass*> registry;
    return registry;
}

} // namespace

CRuntimeClass::CRuntimeClass(LPCSTR className, int objectSize, UINT schema, CObject* (*create)(),
                             CRuntimeClass* baseClass)
    : m_lpszClassName(className), m_nObjectSize(objectSize), m_wSchema(schema),
      m_pfnCreateObject(create), m_pBaseClass(baseClass) {
    Registry()[className] = this;
}

CObject* CRuntimeClass::CreateObject() const {
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* baseClass) const {
    for (const CRuntimeClass* c = this; c; c = c->m_pBaseClass) {
        if (c == baseClass) {
            return TRUE;
        }
    }
    return FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR className) {
    if (!className) {
        return nullptr;
    }
    const auto found = Registry().find(className);
    return found == Registry().end() ? nullptr : found->second;
}

CObject* CRuntimeClass::CreateObject(LPCSTR className) {
    const CRuntimeClass* record = FromName(className);
    return record ? record->CreateObject() : nullptr;
}

CDumpContext& CDumpContext::operator<<(const char* text) {
    m_out << (text ? text : "(null)");
    return *this;
}

CDumpContext& CDumpContext::operator<<(int value) {
    m_out << value;
    return *this;
}

CDumpContext& CDumpContext::operator<<(unsigned int value) {
    m_out << value;
    return *this;
}

CDumpContext& CDumpContext::operator<<(double value) {
    m_out << value;
    return *this;
}

CRuntimeClass CObject::classCObject{"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr};

CRuntimeClass* CObject::GetRuntimeClass() const {
    return &classCObject;
}

void CObject::Serialize(CArchive& /*ar*/) {}

void CObject::Dump(CDumpContext& dc) const {
    dc << "a " << GetRuntimeClass()->m_lpszClassName << "\n";
}

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const {
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}
