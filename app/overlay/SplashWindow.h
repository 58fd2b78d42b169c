// SPDX-License-Identifier: MIT
#pragma once

#include "app/icons/PictureReference.h"
#include "app/widgets/Panel.h"

class SplashAnimation;

/// The program's logo over an animation, without a frame and translucent where there is no picture.
class SplashWindow : public Panel {
    Q_OBJECT

  public:
    static constexpr QSize pictureSize{420, 200};

    SplashWindow();
    /// With its picture from that folder.
    explicit SplashWindow(const QString& folder);

    SplashAnimation& splashAnim() const { return *m_splashAnim; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    PictureReference m_picture;
    SplashAnimation* m_splashAnim;
};
