// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// By which the program is found on the session bus, and what it answers.
namespace bus {

inline const QString name = QStringLiteral("example.orlen.Keyrill");
inline const QString path = QStringLiteral("/example/orlen/Keyrill");
/// "D-Bus Activation" of the desktop entry standard.
inline const QString interface = QStringLiteral("org.freedesktop.Application");
/// Beside it, for macros: app/program/MacrosInterface.h.
inline const QString macros = QStringLiteral("example.orlen.Keyrill.Macros");

/// Who takes the presses of hot keys, as platform/desktops has it: a name and an interface.
inline const QString hotKeys = QStringLiteral("example.orlen.Keyrill.HotKeys");
inline const QString hotKeysPath = QStringLiteral("/example/orlen/Keyrill/HotKeys");

// The errors that answer what is not done; their texts say why: see Refusal::Cause.
inline const QString notNow = QStringLiteral("example.orlen.Keyrill.Error.NotNow");
inline const QString noSuchMacro = QStringLiteral("example.orlen.Keyrill.Error.NoSuchMacro");
inline const QString severalMacros = QStringLiteral("example.orlen.Keyrill.Error.SeveralMacros");
inline const QString notPlayable = QStringLiteral("example.orlen.Keyrill.Error.NotPlayable");

}  // namespace bus
