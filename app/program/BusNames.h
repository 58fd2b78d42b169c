// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// By which the program is found on the session bus, and what it answers.
namespace bus {

inline const QString name = QStringLiteral("example.orlen.Keyrill");
inline const QString path = QStringLiteral("/example/orlen/Keyrill");
/// "D-Bus Activation" of the desktop entry standard.
inline const QString interface = QStringLiteral("org.freedesktop.Application");
/// The error that answers an action which cannot be carried out now; its text says why.
inline const QString notNow = QStringLiteral("example.orlen.Keyrill.Error.NotNow");

}  // namespace bus
