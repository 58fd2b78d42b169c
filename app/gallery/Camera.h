// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

/// Takes pictures of windows as they stand on the screen, with frame and all, into PNG files of one folder.
class Camera {
  public:
    explicit Camera(QString folder) : m_folder(std::move(folder)) {}

    /// Shows the window at a place of its own, takes the picture NAME.png once the screen stands still, and
    /// leaves the window where it is.
    void take(QWidget& window, const QString& name);
    /// The picture of a window that is shown already, and of others around it.
    void takeShown(const QList<QWidget*>& windows, const QString& name);

    /// Handles events until the screen has stood still for a moment.
    static void settle();

  private:
    QString m_folder;
};
