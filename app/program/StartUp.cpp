// SPDX-License-Identifier: MIT
#include "app/program/StartUp.h"

#include <cstdio>
#include <cstdlib>

#include "platform/ErrorText.h"
#include "platform/TerminalText.h"
#include "platform/linux/StandardStreams.h"

void prepareProcess() { occupyStandardStreams(); }

int reportFailure(const Error& error) {
    std::fprintf(stderr, "keyrill: %s\n", harmlessText(inOneParagraph(error)).c_str());
    return EXIT_FAILURE;
}

Result<SessionKind> enterSession(std::string_view name) {
    auto kind = chooseSession(name);
    // The toolkit would take another display that is offered too.
    if (kind) setenv("QT_QPA_PLATFORM", kind.value().toolkit, 1);
    return kind;
}
