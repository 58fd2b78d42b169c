// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/FakeEventMonitor.h"
#include "platform/fake/FakeFolderFollower.h"
#include "platform/fake/FakeHotKeys.h"
#include "platform/fake/FakeKeyInjector.h"
#include "platform/fake/FakeKeyboard.h"
#include "platform/fake/FakeKeyboardLayout.h"
#include "platform/fake/FakeLayers.h"
#include "platform/fake/FakeLoginItems.h"
#include "platform/fake/FakeMacroFiles.h"
#include "platform/fake/FakeNotifications.h"
#include "platform/fake/FakeRecordStore.h"
#include "platform/fake/FakeRecordings.h"
#include "platform/fake/FakeScreenLock.h"
#include "platform/fake/FakeScriptingService.h"
#include "platform/fake/FakeSessionCheck.h"
#include "platform/fake/FakeSettingsStore.h"
#include "platform/fake/FakeSystemFacts.h"
#include "platform/fake/FakeUpdateService.h"
#include "platform/fake/FakeWorkspace.h"
#include "platform/fake/Journal.h"

/// One of each fake service, joined as on a real desktop. Not installed: see ServicesScope.
struct FakePlatform {
    FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    /// The same services with another layout.
    Services servicesWith(KeyboardLayout& layout);

    /// What was asked of all of them.
    Journal journal;
    FakeClock clock;
    FakeDesktop desktop;
    FakeEventMonitor eventMonitor;
    FakeHotKeys hotKeys;
    FakeKeyboard keyboard;
    FakeKeyboardLayout keyboardLayout;
    FakeKeyInjector keyInjector;
    FakeScriptingService scripting;
    FakeSettingsStore settings{journal};
    FakeLoginItems loginItems{journal};
    FakeWorkspace workspace{journal};
    FakeSystemFacts systemFacts;
    FakeUpdateService updateService{journal};
    FakeMacroFiles macroFiles{journal};
    FakeFolderFollower folderFollower{macroFiles};
    FakeRecordStore macroRecords;
    FakeRecordings recordings;
    FakeNotifications notifications{journal};
    FakeScreenLock screenLock;
    FakeSessionCheck sessionCheck{journal};
    FakeLayers layers;
    Services services;
};
