// SPDX-License-Identifier: MIT
#include "app/widgets/ScrollingMenu.h"

#include <QProxyStyle>

namespace {

/// The program's style, but for menus.
class ScrollingStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        if (hint == SH_Menu_Scrollable) return 1;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
};

}  // namespace

ScrollingMenu::ScrollingMenu(const QString& title, QWidget* parent) : QMenu(title, parent) {
    auto* style = new ScrollingStyle;
    style->setParent(this);
    setStyle(style);
}
