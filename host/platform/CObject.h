// Root of the framework's classes: run-time class information without C++ RTTI names.
#pragma once

#include <platform/Windows.h>
#include <platform/export.h>

class CObject;

// Describes one class to IsKindOf and DYNAMIC_DOWNCAST. One object per class, alive as long as its module is loaded.
struct ZOUI_API CRuntimeClass {
    const char* m_name;                   // class name as written
    const CRuntimeClass* (*m_getBase)();  // null for CObject

    // Nonzero when this is `other` or a class derived from it. Null gives 0.
    BOOL IsDerivedFrom(const CRuntimeClass* other) const noexcept;
};

// Polymorphic, not copyable. A class that uses DECLARE_DYNAMIC can be recognised at run time.
class ZOUI_API CObject {
public:
    virtual ~CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;

    // Nonzero when the object's class is `type` or derived from it.
    BOOL IsKindOf(const CRuntimeClass* type) const { return GetRuntimeClass()->IsDerivedFrom(type); }

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

// In the class body. Ends in `public:` access.
#define DECLARE_DYNAMIC(class_name)             \
public:                                         \
    static const CRuntimeClass* GetThisClass(); \
    const CRuntimeClass* GetRuntimeClass() const override;

// In exactly one source. `base_name` is the direct base that has run-time information.
#define IMPLEMENT_DYNAMIC(class_name, base_name)                                                \
    const CRuntimeClass* class_name::GetThisClass() {                                           \
        static const CRuntimeClass type{#class_name, [] { return base_name::GetThisClass(); }}; \
        return &type;                                                                           \
    }                                                                                           \
    const CRuntimeClass* class_name::GetRuntimeClass() const {                                  \
        return GetThisClass();                                                                  \
    }

// The object as `class_name*`, or null when it is null or of another class.
#define DYNAMIC_DOWNCAST(class_name, object) (zoui::dynamicDowncast<class_name>(object))

namespace zoui {

template <class Target>
Target* dynamicDowncast(CObject* object) {
    return object != nullptr && object->IsKindOf(Target::GetThisClass()) ? static_cast<Target*>(object) : nullptr;
}

template <class Target>
const Target* dynamicDowncast(const CObject* object) {
    return object != nullptr && object->IsKindOf(Target::GetThisClass()) ? static_cast<const Target*>(object) : nullptr;
}

}  // namespace zoui
