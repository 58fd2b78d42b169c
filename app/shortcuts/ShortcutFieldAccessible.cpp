// SPDX-License-Identifier: MIT
#include "app/shortcuts/ShortcutFieldAccessible.h"

#include "app/shortcuts/SRRecorderControl.h"

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* field = qobject_cast<SRRecorderControl*>(object);
    return field == nullptr ? nullptr : new ShortcutFieldAccessible(*field);
}

}  // namespace

ShortcutFieldAccessible::ShortcutFieldAccessible(SRRecorderControl& field)
    : QAccessibleWidget(&field, QAccessible::Button), m_field(field) {}

void ShortcutFieldAccessible::install() { QAccessible::installFactory(makeInterface); }

QString ShortcutFieldAccessible::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value) return m_field.displayText();
    return QAccessibleWidget::text(kind);
}

QAccessible::State ShortcutFieldAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = m_field.isRecording();
    return state;
}

QStringList ShortcutFieldAccessible::actionNames() const {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void ShortcutFieldAccessible::doAction(const QString& action) {
    if (action == pressAction()) {
        m_field.startRecording();
    } else {
        QAccessibleWidget::doAction(action);
    }
}
