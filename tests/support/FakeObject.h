// What a shell folder made by a test shares with the objects that it hands out: who they are, and what they are told.
#pragma once

#include <platform/Windows.h>

#include <array>
#include <cstdint>
#include <map>

#include "shell/InterfaceIds.h"

namespace knav::test {

/// The methods of a fake folder and of what it hands out; those of enumerator and icon extractor follow the folder's,
/// and share its identity.
enum class FolderCall {
    QueryInterface,
    AddRef,
    Release,
    ParseDisplayName,
    EnumObjects,
    Next,
    BindToObject,
    CompareIDs,
    CreateViewObject,
    GetAttributesOf,
    GetUIObjectOf,
    GetDisplayNameOf,
    GetIconLocation,
    Extract,
    ViewQueryInterface,
    ViewAddRef,
    ViewRelease,
    GetWindow,
    TranslateAccelerator,
    Refresh,
    CreateViewWindow,
    DestroyViewWindow,
    GetCurrentInfo,
    SaveViewState,
    SelectItem,
    GetItemObject,
    CreateViewWindow2,
    Item,
    GetFocusedItem,
    DataQueryInterface,
    DataAddRef,
    DataRelease,
    GetData,
    Count,
};

enum class Conduct { Works, Fails, Faults, Throws };
using Misconduct = std::map<FolderCall, Conduct>;

/// What of a folder, and of the objects it hands out, a test tells to misbehave, and how often each was called.
class Conducts {
public:
    void set(FolderCall call, Conduct conduct) { m_conduct[index(call)] = conduct; }
    void setAll(Conduct conduct) { m_conduct.fill(conduct); }
    /// From now on these alone misbehave.
    void setOnly(const Misconduct& bad) {
        setAll(Conduct::Works);
        for (const auto& [call, conduct] : bad) {
            set(call, conduct);
        }
    }
    int calls(FolderCall call) const { return m_calls[index(call)]; }
    void forgetCalls() { m_calls.fill(0); }
    /// How many of the objects there are, the folder among them.
    int liveObjects() const { return m_liveObjects; }

    /// Counts a call and behaves badly if told so; `worked` when the call shall work.
    HRESULT enter(FolderCall call, HRESULT worked = S_OK) {
        ++m_calls[index(call)];
        switch (m_conduct[index(call)]) {
            case Conduct::Fails:
                return E_FAIL;
            case Conduct::Faults:
                *reinterpret_cast<volatile int*>(kNowhere) = 1;
                return E_UNEXPECTED;
            case Conduct::Throws:
                throw 1;
            case Conduct::Works:
                break;
        }
        return worked;
    }

private:
    template <FolderCall, class...>
    friend class FakeObject;

    static constexpr std::size_t index(FolderCall call) { return static_cast<std::size_t>(call); }
    static constexpr std::uintptr_t kNowhere = 16;  // null would be reported by a checked build before it faults

    std::array<Conduct, static_cast<std::size_t>(FolderCall::Count)> m_conduct{};
    std::array<int, static_cast<std::size_t>(FolderCall::Count)> m_calls{};
    int m_liveObjects = 0;
};

/// Identity and counting of the fakes; `First` is the object's QueryInterface, AddRef and Release follow it. A method
/// that shall misbehave here does so before anything is counted.
template <FolderCall First, class... Interfaces>
class FakeObject : public Interfaces... {
public:
    explicit FakeObject(Conducts& conducts) : m_shared(conducts) { ++m_shared.m_liveObjects; }
    FakeObject(const FakeObject&) = delete;
    FakeObject& operator=(const FakeObject&) = delete;

    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
        *object = nullptr;
        if (FAILED(m_shared.enter(First))) {
            return E_FAIL;
        }
        const auto take = [&]<class Interface>(Interface* self) {
            if (*object == nullptr && (iid == __uuidof(Interface) || iid == IID_IUnknown)) {
                *object = self;
                ++m_references;
            }
        };
        (take(static_cast<Interfaces*>(this)), ...);
        return *object != nullptr ? S_OK : E_NOINTERFACE;
    }
    ULONG WINAPI AddRef() override {
        m_shared.enter(after(1));
        return static_cast<ULONG>(++m_references);
    }
    ULONG WINAPI Release() override {
        m_shared.enter(after(2));
        const LONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return static_cast<ULONG>(left);
    }

    LONG references() const { return m_references; }

protected:
    virtual ~FakeObject() { --m_shared.m_liveObjects; }
    Conducts& conducts() { return m_shared; }
    HRESULT enter(FolderCall call, HRESULT worked = S_OK) { return m_shared.enter(call, worked); }

private:
    static constexpr FolderCall after(int steps) { return static_cast<FolderCall>(static_cast<int>(First) + steps); }

    Conducts& m_shared;
    LONG m_references = 1;
};

}  // namespace knav::test
