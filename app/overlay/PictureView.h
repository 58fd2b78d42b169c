// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "app/icons/PictureReference.h"

/// The picture behind a translucent window: a dark panel with a mark where its line begins. Where the
/// picture's file is missing there is nothing but what lies behind the window.
class PictureView : public QWidget {
  public:
    /// The width that the mark takes.
    static constexpr int markWidth = 48;
    /// The size that the picture is drawn for; a view that its content makes larger stretches it.
    static constexpr QSize pictureSize{420, 60};

  protected:
    /// The folder of the picture, and its name there.
    PictureView(const QString& folder, const QString& name, QWidget* parent);

    void paintEvent(QPaintEvent* event) override;
    virtual void drawImage(QPainter& painter) const;

  private:
    void loadImage(const QString& folder, const QString& name);

    PictureReference m_image;
};
