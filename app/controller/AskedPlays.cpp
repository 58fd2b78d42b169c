// SPDX-License-Identifier: MIT
#include "app/controller/AskedPlays.h"

#include <utility>

#include "app/controller/Stage.h"
#include "app/tray/Actions.h"
#include "engine/MacroPlayer.h"

AskedPlays::AskedPlays(std::function<MenuFacts()> facts, Stage& stage)
    : m_facts(std::move(facts)), m_stage(stage) {
    m_next.setSingleShot(true);
    QObject::connect(&m_next, &QTimer::timeout, &m_next, [this] { begin(); });
}

Result<> AskedPlays::ask(PlayRequest request) {
    const QString why = obstacle();
    if (!why.isEmpty()) return Error{why.toStdString(), ""};
    m_request = std::move(request);
    m_next.start(0);
    return {};
}

bool AskedPlays::takeBack() {
    const bool waits = m_next.isActive();
    m_next.stop();
    return waits;
}

QString AskedPlays::obstacle() const {
    MenuFacts facts = m_facts();
    // The one that is asked for.
    facts.hasMacro = true;
    return obstacleTo(*actionNamed("play"), facts);
}

void AskedPlays::begin() {
    const PlayRequest request = std::exchange(m_request, {});
    if (!obstacle().isEmpty()) return;
    m_stage.awaitFocusElsewhere(nullptr);
    if (request.begins) request.begins();
    playScript(request.script, request.options);
}
