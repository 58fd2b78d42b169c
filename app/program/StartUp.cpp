// SPDX-License-Identifier: MIT
#include "app/program/StartUp.h"

#include <cstdio>
#include <cstdlib>

int reportFailure(const Error& error) {
    const char* const space = error.hint.empty() ? "" : " ";
    std::fprintf(stderr, "keyrill: %s%s%s\n", error.message.c_str(), space, error.hint.c_str());
    return EXIT_FAILURE;
}

Result<SessionKind> enterSession(std::string_view name) {
    auto kind = chooseSession(name);
    // The toolkit would take another display that is offered too.
    if (kind) setenv("QT_QPA_PLATFORM", kind.value().toolkit, 1);
    return kind;
}
