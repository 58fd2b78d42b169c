// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "app/overlay/PictureReference.h"

/// The picture of the multiple-play prompt: a dark panel with a repetition mark where its line begins.
/// Where its file is missing there is nothing but what lies behind the window.
class MultiplePlayView : public QWidget {
    Q_OBJECT

  public:
    /// The width that the mark takes.
    static constexpr int markWidth = 48;
    /// The size that the picture is drawn for; a view that its content makes larger stretches it.
    static constexpr QSize pictureSize{420, 60};

    /// The folder of the picture.
    explicit MultiplePlayView(const QString& folder, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void loadImage(const QString& folder);
    void drawImage(QPainter& painter) const;

    PictureReference m_image;
};
