// SPDX-License-Identifier: MIT
#include "engine/SharedController.h"

#include <utility>

namespace {
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): what the scope is there for
SharedController* installed = nullptr;
}  // namespace

SharedControllerScope::SharedControllerScope(SharedController& controller)
    : m_previous(std::exchange(installed, &controller)) {}

SharedControllerScope::~SharedControllerScope() { installed = m_previous; }

SharedController* sharedController() { return installed; }
