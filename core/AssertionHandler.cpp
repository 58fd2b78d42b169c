// SPDX-License-Identifier: MIT
#include <boost/assert.hpp>
#include <cstdio>
#include <cstdlib>

// Boost calls these for every failed assertion, in release builds too, because BOOST_ENABLE_ASSERT_HANDLER is
// defined for all targets.
namespace boost {

void assertion_failed(const char* expr, const char* function, const char* file, long line) {
    std::fprintf(stderr, "%s:%ld: %s: assertion failed: %s\n", file, line, function, expr);
    std::abort();
}

void assertion_failed_msg(const char* expr, const char* msg, const char* function, const char* file,
                          long line) {
    std::fprintf(stderr, "%s:%ld: %s: assertion failed: %s (%s)\n", file, line, function, expr, msg);
    std::abort();
}

}  // namespace boost
