// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

/// A line with a warning sign, which is there only while there is something to say.
class NoticeLine : public QWidget {
    Q_OBJECT

  public:
    explicit NoticeLine(QWidget* parent = nullptr);

    /// Shown as it is; empty hides the line.
    void setNotice(const QString& notice);
    QString notice() const;

  private:
    QLabel* m_text;
};
