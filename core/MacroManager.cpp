// SPDX-License-Identifier: MIT
#include "core/MacroManager.h"

#include "core/createShared.h"

boost::shared_ptr<MacroManager>& MacroManager::instance() {
    static boost::shared_ptr<MacroManager> manager;
    if (!manager) manager = createShared<MacroManager>();
    return manager;
}

boost::shared_ptr<Macro> MacroManager::createMacro() {
    auto macro = createShared<Macro>();
    MacroManager& manager = *instance();
    macro->setMacroId(++manager.m_lastId);
    manager.m_macros[macro->macroId()] = macro;
    return macro;
}

boost::shared_ptr<Macro> MacroManager::macro(int macroId) { return instance()->m_macros[macroId]; }
