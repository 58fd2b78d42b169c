// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The picture of the recorder overlay: a dark panel with a recording mark at its left.
class RecorderView : public QWidget {
    Q_OBJECT

  public:
    /// The width that the mark takes at the left.
    static constexpr int markWidth = 48;

    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* event) override;
};
