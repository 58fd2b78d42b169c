// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <new>
#include <stdexcept>
#include <utility>

/// Creates an object of the model in a shared pointer that is never empty.
///
/// Throws std::runtime_error "Could not allocate memory." when memory is short, be it by std::bad_alloc or by
/// an operator new that answers null. Whatever else a constructor throws passes through.
template <typename Object, typename... Arguments>
boost::shared_ptr<Object> createShared(Arguments&&... arguments) {
    constexpr const char* outOfMemory = "Could not allocate memory.";
    boost::shared_ptr<Object> object;
    try {
        // Not make_shared, which would pass by the class's own operator new.
        object.reset(new Object(std::forward<Arguments>(arguments)...));
    } catch (const std::bad_alloc&) {
        throw std::runtime_error(outOfMemory);
    }
    if (!object) throw std::runtime_error(outOfMemory);
    return object;
}
