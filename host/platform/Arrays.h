// Growing arrays with 64-bit indices: of texts, of numbers, of object pointers.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <vector>

#include <platform/CObject.h>
#include <platform/CString.h>

namespace zoui {

// What the arrays have in common. An index outside the array throws std::out_of_range unless a function says that it
// grows the array. References stay valid until the array changes its size. Pointers kept as elements are not owned.
template <class Element>
class Array : public CObject {
public:
    // So that standard algorithms and test matchers take it as a container.
    using value_type = Element;
    using iterator = typename std::vector<Element>::iterator;
    using const_iterator = typename std::vector<Element>::const_iterator;
    std::size_t size() const noexcept { return m_elements.size(); }

    INT_PTR GetSize() const noexcept { return static_cast<INT_PTR>(m_elements.size()); }
    INT_PTR GetCount() const noexcept { return GetSize(); }
    INT_PTR GetUpperBound() const noexcept { return GetSize() - 1; }
    bool IsEmpty() const noexcept { return m_elements.empty(); }

    // New elements are default ones (empty, 0, null). `growBy` is accepted and ignored: growth is geometric.
    void SetSize(INT_PTR size, [[maybe_unused]] INT_PTR growBy = -1) { m_elements.resize(checkedSize(size)); }
    void FreeExtra() { m_elements.shrink_to_fit(); }
    void RemoveAll() noexcept { m_elements.clear(); }

    const Element& GetAt(INT_PTR index) const { return m_elements.at(static_cast<std::size_t>(index)); }
    Element& ElementAt(INT_PTR index) { return m_elements.at(static_cast<std::size_t>(index)); }
    const Element& operator[](INT_PTR index) const { return GetAt(index); }
    Element& operator[](INT_PTR index) { return ElementAt(index); }
    void SetAt(INT_PTR index, const Element& element) { ElementAt(index) = element; }
    const Element* GetData() const noexcept { return m_elements.data(); }
    Element* GetData() noexcept { return m_elements.data(); }

    // Grows the array as needed.
    void SetAtGrow(INT_PTR index, Element element) {
        growTo(checkedSize(index) + 1);
        ElementAt(index) = std::move(element);
    }

    // The index of the new element.
    INT_PTR Add(Element element) {
        m_elements.push_back(std::move(element));
        return GetUpperBound();
    }

    // The index of the first appended element. Appending an array to itself doubles it.
    INT_PTR Append(const Array& source) {
        const INT_PTR first = GetSize();
        const std::size_t count = source.m_elements.size();
        m_elements.reserve(m_elements.size() + count);
        std::copy_n(source.m_elements.begin(), count, std::back_inserter(m_elements));
        return first;
    }
    void Copy(const Array& source) { m_elements = source.m_elements; }

    // Inserting behind the end grows the array up to there first.
    void InsertAt(INT_PTR index, Element element, INT_PTR count = 1) {
        growTo(checkedSize(index));
        m_elements.insert(m_elements.begin() + index, checkedSize(count), element);
    }
    void InsertAt(INT_PTR index, const Array* source) {
        const std::vector<Element> copy = source->m_elements;
        growTo(checkedSize(index));
        m_elements.insert(m_elements.begin() + index, copy.begin(), copy.end());
    }

    void RemoveAt(INT_PTR index, INT_PTR count = 1) {
        if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index) {
            throw std::out_of_range("Array::RemoveAt");
        }
        m_elements.erase(m_elements.begin() + index, m_elements.begin() + index + count);
    }

    const_iterator begin() const noexcept { return m_elements.begin(); }
    const_iterator end() const noexcept { return m_elements.end(); }
    iterator begin() noexcept { return m_elements.begin(); }
    iterator end() noexcept { return m_elements.end(); }

protected:
    Array() = default;

private:
    static std::size_t checkedSize(INT_PTR size) {
        return size >= 0 ? static_cast<std::size_t>(size) : throw std::out_of_range("Array: negative size or index");
    }
    void growTo(std::size_t size) { m_elements.resize(std::max(m_elements.size(), size)); }

    std::vector<Element> m_elements;
};

}  // namespace zoui

class CStringArray : public zoui::Array<CString> {};

class CDWordArray : public zoui::Array<DWORD> {};

class CObArray : public zoui::Array<CObject*> {};

// `BaseArray`'s operations with elements of pointer type `Pointer`. Stored typed, so that no cast is needed anywhere.
template <class BaseArray, class Pointer>
class CTypedPtrArray : public zoui::Array<Pointer> {
    static_assert(std::is_pointer_v<Pointer> && std::is_base_of_v<CObject, BaseArray>);
};
