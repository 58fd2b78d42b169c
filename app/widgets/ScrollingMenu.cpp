// SPDX-License-Identifier: MIT
#include "app/widgets/ScrollingMenu.h"

#include <QCoreApplication>
#include <QEvent>
#include <QProxyStyle>

/// The program's style, but for menus.
class ScrollingMenu::Style : public QProxyStyle {
  public:
    void setScrolls(bool scrolls) { m_scrolls = scrolls; }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        if (hint == SH_Menu_Scrollable) return m_scrolls ? 1 : 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

  private:
    bool m_scrolls = true;
};

ScrollingMenu::ScrollingMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent), m_style(new Style) {
    m_style->setParent(this);
    setStyle(m_style);
}

void ScrollingMenu::hideEvent(QHideEvent* event) {
    QMenu::hideEvent(event);
    forgetScrolling();
}

void ScrollingMenu::forgetScrolling() {
    for (const bool scrolls : {false, true}) {
        m_style->setScrolls(scrolls);
        QEvent changed(QEvent::StyleChange);
        QCoreApplication::sendEvent(this, &changed);
    }
}
