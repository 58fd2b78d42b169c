// SPDX-License-Identifier: MIT
#include "app/shortcuts/SRRecorderControl.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolButton>
#include <chrono>

#include "app/shortcuts/CombinationText.h"
#include "app/shortcuts/KeyboardHold.h"
#include "app/shortcuts/ShortcutFieldAccessible.h"
#include "app/shortcuts/ShortcutKey.h"
#include "app/shortcuts/ShortcutModel.h"
#include "platform/Modifiers.h"

namespace {

constexpr std::chrono::seconds patience{5};
/// A repeat is a release and a press. The toolkit takes the release for the key's own where it has not yet
/// read the press, which follows at once.
constexpr std::chrono::milliseconds repeatGap{50};
constexpr int padding = 6;
constexpr int buttonIcon = 14;
constexpr std::uint32_t allFlags =
    controlflag::control | controlflag::option | controlflag::shift | controlflag::command;

QToolButton* makeClearButton(const QString& name, QWidget* field) {
    auto* button = new QToolButton(field);
    button->setAutoRaise(true);
    button->setIconSize(QSize(buttonIcon, buttonIcon));
    button->setFocusPolicy(Qt::NoFocus);  // Backspace does it
    button->setCursor(Qt::ArrowCursor);
    button->setIcon(button->style()->standardIcon(QStyle::SP_LineEditClearButton));
    button->setAccessibleName(SRRecorderControl::tr("Clear %1").arg(name));
    button->setToolTip(SRRecorderControl::tr("Clear"));
    return button;
}

}  // namespace

SRRecorderControl::SRRecorderControl(ShortcutModel& model, const QString& name, QWidget* parent)
    : QWidget(parent), m_model(model), m_clearButton(makeClearButton(name, this)) {
    ShortcutFieldAccessible::install();
    setAccessibleName(name);
    setToolTip(tr("Click here, then press a combination. Backspace clears, Escape keeps what was set."));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->addStretch();
    layout->addWidget(m_clearButton);

    makeTimers();
    connect(m_clearButton, &QToolButton::clicked, this, &SRRecorderControl::clear);
    connect(&m_model, &ShortcutModel::changed, this, &SRRecorderControl::showValue);
    connect(&m_model, &ShortcutModel::keyComboDidChange, this, &SRRecorderControl::showValue);
    showValue();
}

SRRecorderControl::~SRRecorderControl() = default;

void SRRecorderControl::makeTimers() {
    m_patience.setObjectName(QStringLiteral("patience"));
    m_patience.setInterval(patience);
    m_repeatGap.setObjectName(QStringLiteral("repeatGap"));
    m_repeatGap.setInterval(repeatGap);
    for (QTimer* timer : {&m_patience, &m_repeatGap}) {
        timer->setParent(this);
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &SRRecorderControl::endRecording);
    }
}

void SRRecorderControl::startRecording() {
    setFocus(Qt::OtherFocusReason);
    m_heldModifiers = {};
    m_needsModifier = false;
    m_keyboard = std::make_unique<KeyboardHold>(*this);
    m_patience.start();
    enter(State::recording);
}

void SRRecorderControl::endRecording() {
    m_patience.stop();
    m_repeatGap.stop();
    m_keyboard.reset();
    enter(State::idle);
}

void SRRecorderControl::enter(State state) {
    if (m_state == state) return;
    const bool wasRecording = isRecording();
    m_state = state;
    showValue();
    if (wasRecording != isRecording()) emit recordingChanged();
}

void SRRecorderControl::take(KeyCombo keyCombo, quint32 scanCode) {
    m_takenScanCode = scanCode;
    enter(State::releasing);
    m_model.record(keyCombo);
}

void SRRecorderControl::clear() {
    endRecording();
    m_model.record({});
}

// Qt changes the focus for Tab, and looks for mnemonics, before a key event's own handler is called.
bool SRRecorderControl::event(QEvent* event) {
    const auto* key = dynamic_cast<QKeyEvent*>(event);
    if (key == nullptr) return QWidget::event(event);
    if (event->type() == QEvent::KeyRelease) {
        release(*key);
        return m_state != State::idle || QWidget::event(event);
    }
    if (event->type() == QEvent::ShortcutOverride) {
        event->setAccepted(m_state != State::idle);
        return m_state != State::idle;
    }
    const bool isUsed = m_state == State::idle ? pressWhileIdle(*key) : pressWhileRecording(*key);
    return isUsed || QWidget::event(event);
}

bool SRRecorderControl::pressWhileIdle(const QKeyEvent& press) {
    if (press.isAutoRepeat()) return false;
    if (press.key() == Qt::Key_Backspace) {
        clear();
        return true;
    }
    const bool starts =
        press.key() == Qt::Key_Space || press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    if (starts) startRecording();
    return starts;
}

bool SRRecorderControl::pressWhileRecording(const QKeyEvent& press) {
    if (m_state == State::releasing && press.nativeScanCode() == m_takenScanCode) m_repeatGap.stop();
    if (press.isAutoRepeat() || m_state == State::releasing) return true;
    m_heldModifiers = modifiersAfter(press);
    const ShortcutKey meaning = shortcutKey(press);
    m_needsModifier = meaning == ShortcutKey::needsModifier;
    switch (meaning) {
        case ShortcutKey::combination:
            take(keyComboOf(press), press.nativeScanCode());
            return true;
        case ShortcutKey::clear:
            take({}, press.nativeScanCode());
            return true;
        case ShortcutKey::cancel:
            endRecording();
            return true;
        case ShortcutKey::leave:
            endRecording();
            return false;
        case ShortcutKey::modifier:
        case ShortcutKey::needsModifier:
        case ShortcutKey::unknown:
            break;
    }
    showValue();
    return true;
}

void SRRecorderControl::release(const QKeyEvent& release) {
    if (release.isAutoRepeat() || m_state == State::idle) return;
    if (m_state == State::releasing && release.nativeScanCode() == m_takenScanCode) {
        m_repeatGap.start();
        return;
    }
    m_heldModifiers = modifiersAfter(release);
    showValue();
}

void SRRecorderControl::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (m_state == State::idle) {
        startRecording();
    } else {
        endRecording();
    }
}

void SRRecorderControl::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    endRecording();
}

void SRRecorderControl::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    endRecording();
}

QString SRRecorderControl::displayText() const {
    if (isRecording()) {
        const QString held = modifiersText(controlFlagsOf(m_heldModifiers));
        if (!held.isEmpty()) return held + u'…';
        return m_needsModifier ? tr("Add Ctrl, Alt or Super") : tr("Press a combination…");
    }
    const QString combination = combinationText(m_model.keyCombo());
    return combination.isEmpty() ? tr("Not set") : combination;
}

void SRRecorderControl::showValue() {
    const bool isSet = m_model.keyCombo().code != -1;
    m_clearButton->setVisible(isSet && !isRecording());
    setAccessibleDescription(displayText());
    update();
}

// The mark of the recorder overlay, where the button is otherwise.
void SRRecorderControl::paintRecordingMark(QPainter& painter) const {
    constexpr int diameter = 10;
    const QRect logical(width() - 2 * padding - diameter, (height() - diameter) / 2, diameter, diameter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xe5, 0x48, 0x4d));
    painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), logical));
}

QSize SRRecorderControl::sizeHint() const {
    const QString longest = modifiersText(allFlags) + QStringLiteral("Page Down");
    const QSize text(fontMetrics().horizontalAdvance(longest) + 2 * padding,
                     fontMetrics().height() + padding);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    const int button = m_clearButton->sizeHint().width();
    const QSize content(text.width() + button, qMax(text.height(), m_clearButton->sizeHint().height()));
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this);
}

void SRRecorderControl::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.state |= QStyle::State_Sunken;
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);

    const bool isHint = isRecording() || m_model.keyCombo().code == -1;
    painter.setPen(palette().color(isHint ? QPalette::PlaceholderText : QPalette::Text));
    const int end = m_clearButton->isVisible() || isRecording() ? m_clearButton->sizeHint().width() : 0;
    const QRect logical = rect().adjusted(padding, 0, -padding - end, 0);
    const QRect area = QStyle::visualRect(layoutDirection(), rect(), logical);
    const QString text = fontMetrics().elidedText(displayText(), Qt::ElideRight, area.width());
    // A combination is written from left to right in every language.
    painter.setLayoutDirection(isHint ? layoutDirection() : Qt::LeftToRight);
    const Qt::Alignment leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.drawText(
        area, static_cast<int>(leading | Qt::AlignVCenter | Qt::AlignAbsolute) | Qt::TextSingleLine, text);
    if (isRecording()) paintRecordingMark(painter);
}
