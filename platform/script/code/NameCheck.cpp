// SPDX-License-Identifier: MIT
#include "platform/script/code/NameCheck.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/script/commands/Advice.h"

namespace script {
namespace {

/// How many letters must be changed, put in or left out to make one name the other; case does not matter.
std::size_t distance(const std::string& left, const std::string& right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t changed = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

}  // namespace

void NameCheck::lookAt(const Scope& scope) {
    const std::vector<NameId>& variables = scope.variables();
    std::vector<NameId> known;
    const NameId largest = variables.empty() ? 0 : *std::max_element(variables.begin(), variables.end());
    if (!m_isRunKnown) m_setByRun.resize(largest + std::size_t{1});
    for (std::size_t slot = 0; slot < variables.size(); ++slot) {
        if (scope.uses()[slot].isSet && known.size() < mostCompared) known.push_back(variables[slot]);
        if (scope.uses()[slot].isSet && !m_isRunKnown) m_setByRun[variables[slot]] = true;
    }
    for (std::size_t slot = 0; slot < variables.size(); ++slot) {
        suspect(variables[slot], scope.uses()[slot], known);
    }
    m_isRunKnown = true;
}

void NameCheck::suspect(NameId name, const VariableUse& use, const std::vector<NameId>& known) {
    if (!use.isRead || use.isSet || m_suspects.size() == mostSuspects) return;
    const std::string& called = spelling(name);
    const std::string meant = slipOf(name, known);
    const std::string advice = meant.empty() ? meantBy(called, use.role) : meant;
    m_suspects.push_back({use.offset, neverSet(called) + advice});
    if (!meant.empty() || use.role != NameRole::value) m_out.code().advice.emplace(name, advice);
}

/// Which slip has led to the name; empty if none is known.
std::string NameCheck::slipOf(NameId name, const std::vector<NameId>& known) const {
    const std::string& called = spelling(name);
    if (m_handlers.contains(name)) return "A handler is called with parentheses: " + called + "().";
    if (name < m_setByRun.size() && m_setByRun[name])
        return "A handler has variables of its own; to share this one write there: global " + called + ".";
    std::vector<NameId> all = known;
    const std::vector<NameId>& shared = m_out.script().names();
    all.insert(all.end(), shared.begin(),
               shared.begin() + static_cast<std::ptrdiff_t>(std::min(shared.size(), mostCompared)));
    const std::string similar = similarTo(called, all);
    return similar.empty() ? foreignWordAdvice(called) : "Did you mean " + similar + "?";
}

/// The nearest name, if it is near enough for a slip; short ones are near to one another by chance.
std::string NameCheck::similarTo(const std::string& name, const std::vector<NameId>& known) const {
    constexpr std::size_t longest = 40;
    std::size_t nearest = name.size() < 4 ? 1 : name.size() < 8 ? 2 : 3;
    if (name.size() < 3 || name.size() > longest) return "";
    std::string found;
    for (const NameId other : known) {
        const std::string& candidate = spelling(other);
        const std::size_t more =
            std::max(candidate.size(), name.size()) - std::min(candidate.size(), name.size());
        if (candidate.size() > longest || more >= nearest || candidate == name) continue;
        const std::size_t apart = distance(asciiLowered(name), asciiLowered(candidate));
        if (apart >= nearest) continue;
        nearest = apart;
        found = candidate;
    }
    return found;
}

void NameCheck::warn() {
    ScriptVariables& script = m_out.script();
    const std::vector<NameId> names = script.names();
    for (std::size_t slot = 0; slot < names.size(); ++slot) {
        if (script.isSetProperty(names[slot])) continue;
        suspect(names[slot], script.use(static_cast<std::uint32_t>(slot)), names);
    }
    for (Suspect& suspect : m_suspects) m_out.warn(suspect.offset, std::move(suspect.warning));
}

}  // namespace script
