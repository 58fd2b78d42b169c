// SPDX-License-Identifier: MIT
#include "engine/SharedController.h"

#include <utility>

namespace {
SharedController* installed = nullptr;
}

SharedControllerScope::SharedControllerScope(SharedController& controller)
    : m_previous(std::exchange(installed, &controller)) {}

SharedControllerScope::~SharedControllerScope() { installed = m_previous; }

SharedController* sharedController() { return installed; }
