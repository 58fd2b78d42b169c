// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/script/code/Emitter.h"

namespace script {

/// Finds the names that a script reads and sets nowhere, and says what may have been meant, then and
/// where a run comes to such a name. The script compiles: what it does until then may be all that is wanted.
class NameCheck {
  public:
    /// The emitter outlives the object, and so do the handlers of the script, by their names.
    NameCheck(Emitter& out, const std::unordered_map<NameId, std::uint32_t>& handlers)
        : m_out(out), m_handlers(handlers) {}

    /// Looks at the variables of what runs, which comes first, or of a handler.
    void lookAt(const Scope& scope);
    /// Looks at what the whole script shares, and warns of all that was found.
    void warn();

  private:
    /// Nobody reads more of them.
    static constexpr std::size_t mostSuspects = 200;
    /// So many names are compared with one that was not found.
    static constexpr std::size_t mostCompared = 200;

    void warnOfText(const TextUse& use, NameId name, Held held);
    void noteShared(NameId name, const VariableUse& use);
    void suspect(NameId name, const VariableUse& use, const std::vector<NameId>& known);
    std::string slipOf(NameId name, NameRole role, const std::vector<NameId>& known) const;
    std::string similarTo(const std::string& name, const std::vector<NameId>& known) const;
    bool isSetByRun(NameId name) const { return name < m_setByRun.size() && m_setByRun[name]; }
    const std::string& spelling(NameId name) const { return m_out.tree().names.at(name).spelling; }

    struct Suspect {
        std::uint32_t offset = 0;  ///< in bytes, where the name is read first
        std::string warning;
    };

    Emitter& m_out;
    const std::unordered_map<NameId, std::uint32_t>& m_handlers;
    std::vector<bool> m_setByRun;  ///< by name
    bool m_isRunKnown = false;
    std::vector<Suspect> m_suspects;
};

}  // namespace script
