// SPDX-License-Identifier: MIT
#pragma once

#include "platform/none/NoEventMonitor.h"
#include "platform/none/NoHotKeys.h"
#include "platform/none/NoKeyInjector.h"
#include "platform/none/NoKeyboardLayout.h"

/// What has to do with keys, in a session that shows and takes none: everything answers with the error that
/// says why. It is there so that the program can say it to the user.
struct NoKeys {
    explicit NoKeys(const Error& why)
        : eventMonitor(why), hotKeys(why), keyboardLayout(why), keyInjector(why) {}

    NoEventMonitor eventMonitor;
    NoHotKeys hotKeys;
    NoKeyboardLayout keyboardLayout;
    NoKeyInjector keyInjector;
};
