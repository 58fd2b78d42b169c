// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/script/source/Name.h"

namespace script {

/// The variables that the whole script shares: properties, and what is declared global.
class ScriptVariables {
  public:
    /// The slot of the variable, which is made if there is none.
    std::uint32_t slotOf(NameId name);
    /// Seen by the whole script, not only where it is declared.
    void makeVisible(NameId name) { m_visible.insert(name); }
    bool isVisible(NameId name) const { return m_visible.contains(name); }
    const std::vector<NameId>& names() const { return m_names; }

  private:
    std::unordered_map<NameId, std::uint32_t> m_slots;
    std::unordered_set<NameId> m_visible;
    std::vector<NameId> m_names;
};

/// Where a variable lives.
struct Place {
    bool isGlobal = false;
    std::uint32_t slot = 0;
};

/// The names of one handler.
///
/// Whatever is met there is a variable of its own, unless the handler declares it global or the script makes
/// it visible everywhere and the handler has no own one of that name.
class Scope {
  public:
    explicit Scope(ScriptVariables& script) : m_script(script) {}

    /// A parameter; its slots come first, in order.
    void addParameter(NameId name) { ownSlot(name); }
    /// A slot without a name.
    std::uint32_t addHidden();
    /// False if the name has been declared the other way.
    bool declareGlobal(NameId name);
    bool declareLocal(NameId name);

    /// Where the name's variable is; it is made if there is none.
    Place placeOf(NameId name);
    /// Whether there is such a variable so far.
    bool knows(NameId name) const;
    const std::vector<NameId>& variables() const { return m_variables; }

  private:
    std::uint32_t ownSlot(NameId name);

    ScriptVariables& m_script;
    std::unordered_map<NameId, std::uint32_t> m_own;
    std::unordered_set<NameId> m_globals;
    std::unordered_set<NameId> m_declaredLocal;
    std::vector<NameId> m_variables;
};

}  // namespace script
