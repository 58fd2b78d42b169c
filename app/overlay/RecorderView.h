// SPDX-License-Identifier: MIT
#pragma once

#include "app/overlay/PictureView.h"

/// The picture of the recorder overlay. Its recording mark is at the left in every language, as the keys that
/// are shown beside it run from left to right.
class RecorderView : public PictureView {
  public:
    explicit RecorderView(const QString& folder, QWidget* parent = nullptr)
        : PictureView(folder, QStringLiteral("recording"), parent) {}
};
