// SPDX-License-Identifier: MIT
#include "platform/Services.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): what the scopes are there for
Services* installed = nullptr;
}  // namespace

ServicesScope::ServicesScope(Services& services) : m_previous(std::exchange(installed, &services)) {}

ServicesScope::~ServicesScope() { installed = m_previous; }

Services& services() {
    if (installed == nullptr) {
        std::fputs("services(): no services are installed\n", stderr);
        std::abort();
    }
    return *installed;
}
