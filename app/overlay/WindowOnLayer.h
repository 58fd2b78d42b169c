// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QTimer>
#include <functional>
#include <memory>

#include "platform/Layers.h"

class QWidget;

/// Shows a window on a layer of the session's in place of a window of the toolkit's: while it is shown, what
/// it paints is on the layer, with its opacity, and what is typed and clicked there comes to it. All else of
/// the window is as ever, so that whoever shows, hides and fades it need not know.
class WindowOnLayer : public QObject, private LayerContent {
    Q_OBJECT

  public:
    /// Where the window's upper left corner goes on a screen of that size, whose own is 0, 0.
    using Placement = std::function<QPoint(const QSize& screen)>;
    enum class Input { takes, letsThrough };

    /// The window has not been shown yet and owns the object; `layers` are offered and outlive both.
    WindowOnLayer(QWidget& window, Layers& layers, Input input, Placement placement);
    ~WindowOnLayer() override;

    /// Whether the window is shown on a layer, so that the window system knows nothing of it.
    static bool holds(const QWidget& window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // LayerContent
    LayerSize layerSize() const override;
    LayerPoint placeOn(LayerSize screen) const override;
    void paint(const LayerPicture& picture) override;
    bool takesInput() const override { return m_input == Input::takes; }
    void keyboardComesOrGoes(bool hasKeyboard) override;
    void keyChanges(const LayerKey& key) override;
    void pointerMoves(const LayerPointer& pointer) override;

    void show();
    void hide();
    void refresh();
    void makeActive();
    void followRepeats(const LayerKey& key);
    void repeat();
    void deliver(const LayerKey& key, bool isRepeat);
    void deliver(const LayerPointer& pointer);
    void leaveHovered();
    void send(QWidget& receiver, QEvent::Type kind, const QPointF& place, Qt::MouseButton button,
              Qt::MouseButtons buttons);

    QWidget& m_window;
    Layers& m_layers;
    Input m_input;
    Placement m_placement;
    std::unique_ptr<Layer> m_layer;
    bool m_hasKeyboard = false;
    LayerKey m_held;
    QTimer m_repeat;
    /// The one that the pointer is pressed on, and else the one that it is above.
    QPointer<QWidget> m_pressed;
    QPointer<QWidget> m_hovered;
};
