// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <vector>

class Windows;

/// How the program's windows come onto the screen, leave it and get the focus.
class Stage {
  public:
    /// All windows that hide() takes off the screen, with nulls; asked each time.
    using OrdinaryWindows = std::function<std::vector<QWidget*>()>;

    /// `windows` outlives this.
    Stage(Windows& windows, OrdinaryWindows ordinaryWindows)
        : m_windows(windows), m_ordinaryWindows(std::move(ordinaryWindows)) {}

    /// A minimised window comes back to its size.
    void fadeIn(QWidget& window, double alpha);
    void animateIn(QWidget& window, double alpha);
    /// The window is hidden at once.
    void fadeOut(QWidget& window);

    /// Fades a panel in, in front of the windows of other programs.
    void present(QWidget& panel);
    void present(QWidget& panel, double alpha);
    /// `userTime` is the time of the user's act that permits to take the focus, 0 for this moment.
    void activate(QWidget& window, std::uint32_t userTime);
    /// Waits until keys reach the application that the user was in; `hidden` is a window of ours, or null.
    void awaitFocusElsewhere(const QWidget* hidden);

    /// Takes the ordinary windows off the screen and remembers which, but for `kept`, which may be null.
    void hide(const QWidget* kept = nullptr);
    /// Brings them back, without taking the focus.
    void unhide();

  private:
    Windows& m_windows;
    OrdinaryWindows m_ordinaryWindows;
    std::vector<QPointer<QWidget>> m_hidden;
};
