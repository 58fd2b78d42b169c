// SPDX-License-Identifier: MIT
#pragma once

#include "app/dialogs/Dialogs.h"
#include "platform/Result.h"

// What the program says in alerts, word for word. An error's own words follow where there is one.

namespace alerts {

/// The session is of a kind or an age that the program cannot work in.
AlertText sessionTooOld(const Error& error);
/// Keys can be seen or pressed by nobody here; the default button leads to the documentation.
AlertText noAccess(const Error& error);

/// Nothing can be recorded in this session, though macros can be played.
AlertText cannotRecord(const Error& error);

/// Keys may not be seen, or no longer, so that a recording has ended; whether something of it is kept.
AlertText recordingEnded(const Error& error, bool isSomethingKept);

/// As an alert of its own.
AlertText updateAvailable();
/// As a sheet: the buttons are written otherwise.
AlertText updateAvailableSheet();
AlertText noUpdate();

AlertText macroNotSaved(const QString& path, const Error& error);
AlertText macroNotLoaded(const QString& path, const Error& error);
/// The default button replaces it.
AlertText replaceFile(const QString& path);
/// What was chosen to load from.
AlertText noMacroFile(const QString& path);
AlertText fileNotFound(const QString& path);
AlertText settingsNotSaved(const Error& error);
AlertText loginItemNotSet(const Error& error);
/// Whether hot keys may be written into the settings of the desktop; the alternate button decides nothing.
AlertText mayWriteHotKeys();
/// Of the settings, found behind the user's back.
AlertText settingsFault(const Error& error);

}  // namespace alerts
