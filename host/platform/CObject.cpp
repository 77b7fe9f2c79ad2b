#include <platform/CObject.h>

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* other) const noexcept {
    for (const CRuntimeClass* type = this; type != nullptr && other != nullptr;
         type = type->m_getBase != nullptr ? type->m_getBase() : nullptr) {
        if (type == other) {
            return TRUE;
        }
    }
    return FALSE;
}

const CRuntimeClass* CObject::GetThisClass() {
    static const CRuntimeClass type{"CObject", nullptr};
    return &type;
}

const CRuntimeClass* CObject::GetRuntimeClass() const {
    return GetThisClass();
}
