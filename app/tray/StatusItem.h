// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "app/icons/StatusImage.h"

class QMenu;
class QWidget;

/// The program's place in the desktop: an image with a menu.
class StatusItem {
  public:
    virtual ~StatusItem() = default;

    /// Starts showing the item, here and now or as soon as there is a place for it.
    virtual void show(QMenu& menu, StatusImage image) = 0;
    virtual void setImage(StatusImage image) = 0;

    /// What the user should know, one line for each matter; empty for nothing.
    virtual void setNotice(const QString& notice) = 0;

    /// The ordinary window that stands in for the item where the desktop has no place for one; null while
    /// there is none.
    virtual QWidget* window() = 0;
    /// Shows such a window, in front of all others, also where there is a place for the item.
    virtual void showWindow() = 0;
};
