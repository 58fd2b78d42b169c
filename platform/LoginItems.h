// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

/// The one entry that starts this program when the user logs in.
class LoginItems {
  public:
    enum class State {
        off,
        /// The entry is there and starts the program under its present path.
        on,
        /// The user switched the entry off by the desktop's own means; install() leaves it so.
        hiddenByUser,
    };

    virtual ~LoginItems() = default;

    /// As it is now: users and desktops change it behind the program's back.
    virtual State state() const = 0;

    /// Adds or removes the entry. A second call changes nothing. An entry with another path is replaced by
    /// true and left alone by false.
    ///
    /// Fails, without having changed anything, where the path cannot stand in an entry and where the folder
    /// cannot be written.
    virtual Result<> install(bool enable) = 0;

    /// The user wishes the entry that they had hidden back: install(true), which replaces a hidden one too.
    virtual Result<> reveal() = 0;
};
