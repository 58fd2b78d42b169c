// SPDX-License-Identifier: MIT
#pragma once

#include "app/Panel.h"

class SplashAnimation;

/// The program's logo over an animation, without a frame and with nothing behind.
class SplashWindow : public Panel {
    Q_OBJECT

  public:
    SplashWindow();

    SplashAnimation& splashAnim() const { return *m_splashAnim; }

  private:
    SplashAnimation* m_splashAnim;
};
