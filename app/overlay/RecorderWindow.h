// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>

class MacroText;

/// The overlay that shows the keys while a macro is recorded. It cannot take the focus and clicks pass
/// through it; window managers leave it alone, and it raises itself with each text, so that it also lies
/// above fullscreen windows.
class RecorderWindow : public QWidget {
    Q_OBJECT

  public:
    RecorderWindow();
    /// With its picture from that folder.
    explicit RecorderWindow(const QString& folder);

    /// Where its upper left corner goes on a screen of that size, whose own is 0, 0: near the upper right
    /// one.
    QPoint placeOn(const QSize& screen) const;
    /// Moves there on the primary screen.
    void place();
    /// UTF-8.
    void setMacroString(const std::string& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    MacroText* m_macroText;
};
