// SPDX-License-Identifier: MIT
#include "platform/fake/FakePlatform.h"

FakePlatform::FakePlatform()
    : desktop(clock),
      eventMonitor(journal, desktop),
      hotKeys(journal, desktop, clock),
      keyboard(desktop, eventMonitor, hotKeys),
      keyInjector(journal, desktop, keyboard, clock),
      scripting(journal, desktop),
      screenLock(desktop),
      services(servicesWith(keyboardLayout)) {}

Services FakePlatform::servicesWith(KeyboardLayout& layout) {
    return {.clock = clock,
            .eventMonitor = eventMonitor,
            .hotKeys = hotKeys,
            .keyboardLayout = layout,
            .keyInjector = keyInjector,
            .scripting = scripting,
            .settings = settings,
            .loginItems = loginItems,
            .workspace = workspace,
            .systemFacts = systemFacts,
            .updateService = updateService,
            .macroFiles = macroFiles,
            .notifications = notifications,
            .screenLock = screenLock,
            .sessionCheck = sessionCheck,
            .layers = layers};
}
