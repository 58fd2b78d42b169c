// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "app/macros/MacroListItem.h"

/// The macros that the user keeps, as the window needs them.
class MacroShelf : public QObject {
    Q_OBJECT

  public:
    /// Begins to follow the macro folder; changed() is told when it has been read.
    virtual void open() = 0;
    /// Those of no group first, then by the names of their groups; within each by their names.
    virtual std::vector<MacroListItem> items() const = 0;
    /// Absolute; one for each macro and each path that could be one's.
    virtual std::string fileOf(const std::string& path) const = 0;
    /// The path of a file in the folder.
    virtual std::string pathOf(const std::string& file) const = 0;

  signals:
    /// Macros have come or gone.
    void changed();
    /// The macro's text may be another.
    void contentChanged(const std::string& path);
};
