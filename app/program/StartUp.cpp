// SPDX-License-Identifier: MIT
#include "app/program/StartUp.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

#include "platform/ErrorText.h"
#include "platform/TerminalText.h"
#include "platform/linux/StandardStreams.h"

void prepareProcess() { occupyStandardStreams(); }

void endInOrderWithServer() {
    void* const library = dlopen("libX11.so.6", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) return;
    using Handler = int (*)(void* display);
    using Setter = Handler (*)(Handler);
    // Without one the library calls exit().
    if (void* const setter = dlsym(library, "XSetIOErrorHandler")) reinterpret_cast<Setter>(setter)(nullptr);
    dlclose(library);
}

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
