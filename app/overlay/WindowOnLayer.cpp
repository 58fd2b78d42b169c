// SPDX-License-Identifier: MIT
#include "app/overlay/WindowOnLayer.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <QWindow>
#include <chrono>

#include "app/overlay/LayerKeys.h"

WindowOnLayer::WindowOnLayer(QWidget& window, Layers& layers, Input input, Placement placement)
    : QObject(&window),
      m_window(window),
      m_layers(layers),
      m_input(input),
      m_placement(std::move(placement)) {
    m_window.setAttribute(Qt::WA_DontShowOnScreen);
    m_window.installEventFilter(this);
    // The toolkit tells of a window's opacity only where the window system has one.
    m_window.winId();
    connect(m_window.windowHandle(), &QWindow::opacityChanged, this, &WindowOnLayer::refresh);
    connect(&m_repeat, &QTimer::timeout, this, &WindowOnLayer::repeat);
}

WindowOnLayer::~WindowOnLayer() = default;

bool WindowOnLayer::holds(const QWidget& window) {
    return window.findChild<WindowOnLayer*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

bool WindowOnLayer::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
            show();
            break;
        case QEvent::Hide:
            hide();
            break;
        case QEvent::UpdateRequest:
        case QEvent::Resize:
            // When the window has taken note of it.
            QMetaObject::invokeMethod(this, &WindowOnLayer::refresh, Qt::QueuedConnection);
            break;
        case QEvent::WindowDeactivate:
            // The window system has taken the keyboard from another window of the program's, and the toolkit
            // takes that for the end of all.
            if (m_hasKeyboard)
                QMetaObject::invokeMethod(this, &WindowOnLayer::makeActive, Qt::QueuedConnection);
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowOnLayer::show() {
    if (!m_layer) m_layer = m_layers.show(*this);
}

void WindowOnLayer::hide() {
    m_layer.reset();
    m_repeat.stop();
    m_pressed = nullptr;
    m_hovered = nullptr;
    m_hasKeyboard = false;
    if (QApplication::activeWindow() == &m_window) QApplication::setActiveWindow(nullptr);
}

void WindowOnLayer::refresh() {
    if (m_layer) m_layer->refresh();
}

LayerSize WindowOnLayer::layerSize() const { return {m_window.width(), m_window.height()}; }

LayerPoint WindowOnLayer::placeOn(LayerSize screen) const {
    const QPoint place = m_placement({screen.width, screen.height});
    return {static_cast<double>(place.x()), static_cast<double>(place.y())};
}

// The mask is for those who know no other way to round corners: the picture's own are rounder.
void WindowOnLayer::paint(const LayerPicture& picture) {
    QImage opaque(picture.width, picture.height, QImage::Format_ARGB32_Premultiplied);
    opaque.setDevicePixelRatio(picture.scale);
    opaque.fill(Qt::transparent);
    m_window.render(&opaque, {}, {}, QWidget::DrawChildren | QWidget::IgnoreMask);
    QImage shown(reinterpret_cast<uchar*>(picture.pixels.data()), picture.width, picture.height,
                 QImage::Format_ARGB32_Premultiplied);
    shown.setDevicePixelRatio(picture.scale);
    QPainter painter(&shown);
    painter.setOpacity(m_window.windowOpacity());
    painter.drawImage(0, 0, opaque);
}

void WindowOnLayer::keyboardComesOrGoes(bool hasKeyboard) {
    m_hasKeyboard = hasKeyboard;
    m_repeat.stop();
    QMetaObject::invokeMethod(this, &WindowOnLayer::makeActive, Qt::QueuedConnection);
}

void WindowOnLayer::makeActive() {
    if (m_hasKeyboard) {
        QApplication::setActiveWindow(&m_window);
    } else if (QApplication::activeWindow() == &m_window) {
        QApplication::setActiveWindow(nullptr);
    }
}

// Later: what a key does may take the layer away that tells of it, and last for as long as a macro plays.
void WindowOnLayer::keyChanges(const LayerKey& key) {
    if (!m_hasKeyboard) return;
    followRepeats(key);
    QMetaObject::invokeMethod(
        this, [this, key] { deliver(key, false); }, Qt::QueuedConnection);
}

void WindowOnLayer::pointerMoves(const LayerPointer& pointer) {
    QMetaObject::invokeMethod(
        this, [this, pointer] { deliver(pointer); }, Qt::QueuedConnection);
}

/// The key that was pressed last repeats, until it is released.
void WindowOnLayer::followRepeats(const LayerKey& key) {
    if (key.isPress && key.repeatInterval > 0) {
        m_held = key;
        m_repeat.start(key.repeatDelay);
    } else if (key.isPress || key.keycode == m_held.keycode) {
        m_repeat.stop();
    }
}

void WindowOnLayer::repeat() {
    m_repeat.start(m_held.repeatInterval);
    deliver(m_held, true);
}

void WindowOnLayer::deliver(const LayerKey& key, bool isRepeat) {
    if (!m_layer) return;
    QKeyEvent event = keyEventOf(key, isRepeat);
    QWidget* const focused = m_window.focusWidget();
    QApplication::sendEvent(focused == nullptr ? &m_window : focused, &event);
}

void WindowOnLayer::deliver(const LayerPointer& pointer) {
    if (!m_layer) return;
    const QPointF place(pointer.place.x, pointer.place.y);
    QWidget* const child = m_window.childAt(place.toPoint());
    QWidget* const below = m_pressed ? m_pressed.data() : child != nullptr ? child : &m_window;
    switch (pointer.kind) {
        case LayerPointer::Kind::leave:
            leaveHovered();
            break;
        case LayerPointer::Kind::motion:
            if (m_hovered != below) {
                leaveHovered();
                m_hovered = below;
                QEnterEvent entered(below->mapFrom(&m_window, place), place, place);
                QApplication::sendEvent(below, &entered);
            }
            send(*below, QEvent::MouseMove, place, Qt::NoButton, m_pressed ? Qt::LeftButton : Qt::NoButton);
            break;
        case LayerPointer::Kind::press:
            m_pressed = below;
            send(*below, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
            break;
        case LayerPointer::Kind::release:
            m_pressed = nullptr;
            send(*below, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
            break;
    }
}

void WindowOnLayer::leaveHovered() {
    if (!m_hovered) return;
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(m_hovered, &left);
    m_hovered = nullptr;
}

void WindowOnLayer::send(QWidget& receiver, QEvent::Type kind, const QPointF& place, Qt::MouseButton button,
                         Qt::MouseButtons buttons) {
    QMouseEvent event(kind, receiver.mapFrom(&m_window, place), place, place, button, buttons,
                      QApplication::keyboardModifiers());
    QApplication::sendEvent(&receiver, &event);
}
