// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/script/commands/Advice.h"
#include "platform/script/source/Name.h"

namespace script {

/// A place where a variable is taken for a text.
struct TextUse {
    std::uint32_t slot = 0;
    std::uint32_t offset = 0;  ///< in bytes
    bool isTyped = false;      ///< or else compared with a text
};

/// What is to be said of a variable that the script reads.
struct VariableUse {
    bool isSet = false;
    Held held = Held::other;  ///< wherever it is set
    bool isRead = false;
    NameRole role = NameRole::value;  ///< what its value is taken for
    std::uint32_t offset = 0;         ///< where it is read first, in bytes
};

/// The variables that the whole script shares: properties, and what is declared global.
class ScriptVariables {
  public:
    /// The slot of the variable, which is made if there is none.
    std::uint32_t slotOf(NameId name);
    /// Seen by the whole script, not only where it is declared.
    void makeVisible(NameId name) { m_visible.insert(name); }
    bool isVisible(NameId name) const { return m_visible.contains(name); }
    const std::vector<NameId>& names() const { return m_names; }
    /// Of the variable in a slot.
    VariableUse& use(std::uint32_t slot) { return m_uses[slot]; }
    /// Set by its name, as a property of the script.
    void setProperty(NameId name) { m_setProperties.insert(name); }
    bool isSetProperty(NameId name) const { return m_setProperties.contains(name); }

  private:
    std::unordered_map<NameId, std::uint32_t> m_slots;
    std::unordered_set<NameId> m_visible;
    std::unordered_set<NameId> m_setProperties;
    std::vector<NameId> m_names;
    std::vector<VariableUse> m_uses;
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
    void addParameter(NameId name) { m_uses[ownSlot(name)].isSet = true; }
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
    const std::vector<VariableUse>& uses() const { return m_uses; }

    /// The variable is set somewhere, to that.
    void noteSet(Place place, Held held = Held::other);
    /// A variable that was set before is taken for a text; of those that are shared nothing is noted.
    void noteText(NameId name, std::uint32_t offset, bool isTyped);
    /// Of its own variables, in the order of the source.
    const std::vector<TextUse>& textUses() const { return m_textUses; }
    /// It is read there.
    void noteRead(Place place, std::uint32_t offset, NameRole role);

  private:
    std::uint32_t ownSlot(NameId name);
    VariableUse& useOf(Place place) { return place.isGlobal ? m_script.use(place.slot) : m_uses[place.slot]; }

    ScriptVariables& m_script;
    std::unordered_map<NameId, std::uint32_t> m_own;
    std::unordered_set<NameId> m_globals;
    std::unordered_set<NameId> m_declaredLocal;
    std::vector<NameId> m_variables;
    std::vector<VariableUse> m_uses;
    std::vector<TextUse> m_textUses;
};

}  // namespace script
