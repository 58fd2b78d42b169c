// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "platform/Capabilities.h"

// What the session's capabilities are called on the screen, in the user's language.

/// By what it works: "by XTEST"; empty for none.
QString meansWords(Means means);

/// What does not work for want of it, and what can be done.
struct LackWords {
    /// A sentence; empty for nothing.
    QString loss;
    /// Sentences; empty where nothing can be done.
    QString advice;
};

LackWords lackWords(Lack lack);
