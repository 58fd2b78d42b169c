// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class QLineEdit;
class QPushButton;

/// The prompt that asks how many times to play.
class MultiplePlayWindow : public QWidget {
    Q_OBJECT

  public:
    MultiplePlayWindow();
    /// With its picture from that folder.
    explicit MultiplePlayWindow(const QString& folder);

    /// Where its upper left corner goes on a screen of that size, whose own is 0, 0.
    QPoint placeOn(const QSize& screen) const;
    /// Moves there on the primary screen.
    void place();

    /// Whether the button and Return play; the button says so if not.
    void setPlays(bool plays);

    /// The field gets the keys, its text is selected.
    void focusTimesText();
    QString timesText() const;

  signals:
    void confirmed();
    void dismissed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addControls(QWidget& view);
    void confirm();

    QLineEdit* m_timesText;
    QPushButton* m_playButton;
    bool m_plays = true;
};
