// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

/// Texts are read from right to left meanwhile.
class RightToLeft {
  public:
    RightToLeft() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~RightToLeft() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    RightToLeft(const RightToLeft&) = delete;
    RightToLeft& operator=(const RightToLeft&) = delete;
};
