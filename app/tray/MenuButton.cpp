// SPDX-License-Identifier: MIT
#include "app/tray/MenuButton.h"

#include <QAccessibleWidget>
#include <QMenu>

namespace {

class MenuButtonAccessible : public QAccessibleWidget {
  public:
    explicit MenuButtonAccessible(MenuButton& button)
        : QAccessibleWidget(&button, QAccessible::ButtonMenu), m_button(button) {}

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_button.menu()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == m_button.menu() ? 0 : -1;
    }
    QString text(QAccessible::Text kind) const override {
        // Without the mark of the mnemonic.
        return kind == QAccessible::Name ? m_button.text().remove(u'&') : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
        // Answered at once: the menu is open until the user is done with it.
        QMetaObject::invokeMethod(&m_button, &QPushButton::showMenu, Qt::QueuedConnection);
    }

  private:
    MenuButton& m_button;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* button = qobject_cast<MenuButton*>(object);
    return button == nullptr ? nullptr : new MenuButtonAccessible(*button);
}

}  // namespace

MenuButton::MenuButton(const QString& text, QMenu& menu, QWidget* parent) : QPushButton(text, parent) {
    QAccessible::installFactory(makeInterface);
    setMenu(&menu);
}
