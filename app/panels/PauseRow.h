// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class PauseModel;

/// Which pauses recordings keep: a choice and, where pauses are cut, how long they may be.
class PauseRow : public QWidget {
    Q_OBJECT

  public:
    /// The model outlives the row.
    explicit PauseRow(PauseModel& model, QWidget* parent = nullptr);
};
