// SPDX-License-Identifier: MIT
#include "app/controller/AskedPlays.h"

#include <utility>

#include "app/controller/Gate.h"
#include "app/controller/Stage.h"
#include "app/tray/Actions.h"
#include "engine/MacroPlayer.h"

AskedPlays::AskedPlays(std::function<MenuFacts()> facts, const Gate& gate, Stage& stage)
    : m_facts(std::move(facts)), m_gate(gate), m_stage(stage) {
    m_next.setSingleShot(true);
    QObject::connect(&m_next, &QTimer::timeout, &m_next, [this] { begin(); });
}

Result<> AskedPlays::ask(PlayRequest request) {
    MenuFacts facts = m_facts();
    // This one.
    facts.hasMacro = true;
    const QString obstacle = obstacleTo(*actionNamed("play"), facts);
    if (!obstacle.isEmpty()) return Error{obstacle.toStdString(), ""};
    m_request = std::move(request);
    m_next.start(0);
    return {};
}

bool AskedPlays::takeBack() {
    const bool waits = m_next.isActive();
    m_next.stop();
    return waits;
}

void AskedPlays::begin() {
    if (!m_gate.isOpen()) return;
    const PlayRequest request = std::exchange(m_request, {});
    m_stage.awaitFocusElsewhere(nullptr);
    if (request.begins) request.begins();
    playScript(request.script, request.options);
}
