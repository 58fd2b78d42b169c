// SPDX-License-Identifier: MIT
#pragma once

#include "app/Panel.h"

/// Name, version, licence, the libraries with theirs, and where to read more.
class AboutPanel : public Panel {
    Q_OBJECT

  public:
    AboutPanel();

  signals:
    /// The user wants to see a page.
    void pageRequested(const QString& address);
};
