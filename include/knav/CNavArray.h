#pragma once

#include <limits>
#include <memory>
#include <utility>

#include <platform/Arrays.h>

/// An array that owns the objects its pointers lead to.
///
/// Elements that are removed through the operations below, or are still there when the array is destroyed, are
/// deleted. The operations of the base array work too, but neither delete what they take out nor protect an object
/// from being put in twice. Index errors never throw here. Not thread-safe.
template <class T>
class CNavArray : public CTypedPtrArray<CObArray, T*> {
public:
    CNavArray() = default;
    ~CNavArray() override { RemoveAllData(); }

    /// Makes one default-constructed element, owned by the caller; null when it cannot. Override it to fill the array
    /// with elements of a derived class.
    virtual T* NewData() {
        try {
            return new T;
        } catch (...) {
            return nullptr;
        }
    }

    /// Appends an element made by NewData() and returns it; the array keeps the ownership. Null, and the array as it
    /// was, when none could be made.
    T* AddData() noexcept {
        try {
            std::unique_ptr<T> element(NewData());
            if (element != nullptr) {
                this->Add(element.get());
            }
            return element.release();
        } catch (...) {
            return nullptr;
        }
    }

    /// Number of elements.
    int GetCount() const noexcept {
        constexpr INT_PTR most = std::numeric_limits<int>::max();
        return static_cast<int>(this->GetSize() < most ? this->GetSize() : most);
    }

    /// The element at `index`, still owned by the array; null for an index outside the array.
    T* GetData(__int64 index) const noexcept { return IsIndexValid(index) ? this->GetAt(index) : nullptr; }

    /// 1 when there is an element at `index`, else 0.
    int IsIndexValid(__int64 index) const noexcept { return index >= 0 && index < this->GetSize() ? 1 : 0; }

    /// Takes the element at `index` out and deletes it; an index outside the array is ignored.
    void RemoveData(__int64 index) noexcept {
        if (IsIndexValid(index)) {
            const std::unique_ptr<T> element(this->GetAt(index));
            this->RemoveAt(index);
        }
    }

    /// Deletes all elements, the first one first, and releases the array's memory.
    void RemoveAllData() noexcept {
        for (INT_PTR index = 0; index < this->GetSize(); ++index) {
            delete std::exchange(this->ElementAt(index), nullptr);
        }
        this->RemoveAll();
        this->FreeExtra();
    }
};
