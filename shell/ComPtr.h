// An owning pointer to a COM object that may be foreign.
#pragma once

#include <platform/Windows.h>

#include <utility>

#include "shell/Guard.h"
#include "shell/InterfaceIds.h"

namespace knav {

/// Owns one reference. Unlike the system headers' pointer it releases under the fault guard, because the objects of
/// this library come from folders and extensions that may be broken.
template <class Interface>
class ComPtr {
public:
    ComPtr() noexcept = default;
    ComPtr(std::nullptr_t) noexcept {}
    ComPtr(const ComPtr& other) noexcept : ComPtr(retain(other.m_object)) {}
    ComPtr(ComPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~ComPtr() { reset(); }

    /// Takes over the caller's reference.
    static ComPtr adopt(Interface* object) noexcept {
        ComPtr owner;
        owner.m_object = object;
        return owner;
    }

    /// Adds a reference of its own; null when that fails.
    static ComPtr retain(Interface* object) noexcept {
        return adopt(object != nullptr && guardedRun([object] { object->AddRef(); }) ? object : nullptr);
    }

    /// What `call`, which fills a pointer to an object with one reference, supplies; null when it fails or faults.
    /// What a failing call left in the pointer is not touched.
    template <class Call>
    static ComPtr from(Call&& call) noexcept {
        Interface* object = nullptr;
        return adopt(SUCCEEDED(guarded([&] { return call(&object); })) ? object : nullptr);
    }

    /// Another interface of the same object; null when it has none.
    template <class Other>
    ComPtr<Other> as() const noexcept {
        if (m_object == nullptr) {
            return nullptr;
        }
        return ComPtr<Other>::from([this](Other** object) {
            return m_object->QueryInterface(__uuidof(Other), reinterpret_cast<void**>(object));
        });
    }

    Interface* get() const noexcept { return m_object; }
    Interface* operator->() const noexcept { return m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    /// Where a call of the system puts its answer; what was held is released first.
    Interface** put() noexcept {
        reset();
        return &m_object;
    }

    /// Gives the reference to the caller.
    Interface* release() noexcept { return std::exchange(m_object, nullptr); }

    void reset() noexcept {
        if (Interface* const object = release()) {
            guardedRun([object] { object->Release(); });
        }
    }

private:
    Interface* m_object = nullptr;
};

/// A new object of a registered class, made in this process; null when that fails.
template <class Interface>
ComPtr<Interface> createInProcess(REFCLSID clsid) noexcept {
    return ComPtr<Interface>::from([&clsid](Interface** object) {
        return CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                                reinterpret_cast<void**>(object));
    });
}

}  // namespace knav
