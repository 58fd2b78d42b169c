// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

/// The program's name on a row of keys that are pressed one after the other, again and again, while it is
/// shown.
class SplashAnimation : public QWidget {
    Q_OBJECT

  public:
    explicit SplashAnimation(QWidget* parent = nullptr);

    void startRendering();
    /// The picture stays as it is.
    void stopRendering();
    bool isRendering() const { return m_frames.isActive(); }

    QSize sizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QTimer m_frames;
    QElapsedTimer m_elapsed;
    qint64 m_shown = 0;  ///< the moment of the picture, in ms of the animation
};
