// Objects that live as long as the process.
#pragma once

#include <cstddef>
#include <new>

namespace knav {

/// The one object of its type, made at the first call and never destroyed: a host's static objects may go later than
/// those of the library, and extensions' modules earlier. It lives in a place of its own, so that to ask for it needs
/// no memory; destructors may.
template <class Object>
Object& neverDestroyed() noexcept {
    alignas(Object) static std::byte place[sizeof(Object)];
    static Object& object = *new (place) Object;
    return object;
}

}  // namespace knav
