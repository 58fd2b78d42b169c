// SPDX-License-Identifier: MIT
#pragma once

#include "app/overlay/PictureView.h"

/// The picture of the multiple-play prompt, mirrored where its line runs from right to left.
class MultiplePlayView : public PictureView {
  public:
    explicit MultiplePlayView(const QString& folder, QWidget* parent = nullptr)
        : PictureView(folder, QStringLiteral("multiplePlay"), parent) {}

  protected:
    void drawImage(QPainter& painter) const override;
};
