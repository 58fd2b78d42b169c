// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/FakeEventMonitor.h"
#include "platform/fake/FakeHotKeys.h"
#include "platform/fake/FakeKeyInjector.h"
#include "platform/fake/FakeKeyboard.h"
#include "platform/fake/FakeKeyboardLayout.h"
#include "platform/fake/FakeScriptingService.h"
#include "platform/fake/FakeSettingsStore.h"

/// One of each fake service, joined as on a real desktop. Not installed: see ServicesScope.
struct FakePlatform {
    FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    FakeClock clock;
    FakeDesktop desktop;
    FakeEventMonitor eventMonitor;
    FakeHotKeys hotKeys;
    FakeKeyboard keyboard;
    FakeKeyboardLayout keyboardLayout;
    FakeKeyInjector keyInjector;
    FakeScriptingService scripting;
    FakeSettingsStore settings;
    Services services;
};
