// SPDX-License-Identifier: MIT
#include "platform/fake/FakePlatform.h"

FakePlatform::FakePlatform()
    : desktop(clock),
      eventMonitor(desktop),
      hotKeys(desktop, clock),
      keyboard(desktop, eventMonitor, hotKeys),
      keyInjector(desktop, keyboard, clock),
      scripting(desktop),
      services{clock, eventMonitor, hotKeys, keyboardLayout, keyInjector, scripting, settings} {}
