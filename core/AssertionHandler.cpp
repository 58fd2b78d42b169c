// SPDX-License-Identifier: MIT
#include <boost/assert.hpp>
#include <cstdio>
#include <cstdlib>

// Boost calls these for every failed assertion, in release builds too, because BOOST_ENABLE_ASSERT_HANDLER is
// defined for all targets.
namespace boost {

void assertion_failed(const char* expression, const char* function, const char* file, long line) {
    std::fprintf(stderr, "%s:%ld: %s: assertion failed: %s\n", file, line, function, expression);
    std::abort();
}

void assertion_failed_msg(const char* expression, const char* message, const char* function, const char* file,
                          long line) {
    std::fprintf(stderr, "%s:%ld: %s: assertion failed: %s (%s)\n", file, line, function, expression,
                 message);
    std::abort();
}

}  // namespace boost
