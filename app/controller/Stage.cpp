// SPDX-License-Identifier: MIT
#include "app/controller/Stage.h"

#include "app/overlay/Alphas.h"
#include "app/overlay/Fades.h"
#include "app/overlay/WindowOnLayer.h"
#include "app/widgets/IsShown.h"
#include "app/widgets/OwnWindow.h"
#include "platform/Windows.h"

void Stage::fadeIn(QWidget& window, double alpha) {
    setAlpha(window, 0);
    animateIn(window, alpha);
}

void Stage::animateIn(QWidget& window, double alpha) {
    if (window.isMinimized()) {
        window.showNormal();
    } else {
        window.show();
    }
    animateAlpha(window, alpha);
}

void Stage::fadeOut(QWidget& window) {
    animateAlpha(window, 0);
    window.hide();
    endFade(window);
}

void Stage::present(QWidget& panel) { present(panel, panelAlpha); }

void Stage::present(QWidget& panel, double alpha) {
    unhide();
    fadeIn(panel, alpha);
    panel.raise();
    activate(panel, 0);
}

void Stage::activate(QWidget& window, std::uint32_t userTime) {
    // A layer that takes the keyboard has it already.
    if (!WindowOnLayer::holds(window)) m_windows.activate(ownWindow(window), userTime);
}

void Stage::awaitFocusElsewhere(const QWidget* hidden) {
    const bool isKnown = hidden != nullptr && !WindowOnLayer::holds(*hidden);
    m_windows.awaitFocusElsewhere(isKnown ? hiddenWindow(*hidden) : OwnWindow());
}

void Stage::hide(const QWidget* kept) {
    for (QWidget* window : m_ordinaryWindows()) {
        if (!isShown(window) || window == kept) continue;
        window->hide();
        m_hidden.emplace_back(window);
    }
}

void Stage::unhide() {
    for (const QPointer<QWidget>& window : m_hidden) {
        if (window) window->show();
    }
    m_hidden.clear();
}
