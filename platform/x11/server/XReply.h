// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

namespace x11 {

/// Frees what xcb allocated with malloc: replies, events, errors.
struct XFree {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using XReply = std::unique_ptr<Reply, XFree>;

}  // namespace x11
