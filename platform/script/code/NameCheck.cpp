// SPDX-License-Identifier: MIT
#include "platform/script/code/NameCheck.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/source/Misspelling.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Misspelt.h"

namespace script {
namespace {

WordPlace placeOf(NameRole role) {
    if (role == NameRole::statement || role == NameRole::program) return WordPlace::statement;
    return role == NameRole::text || role == NameRole::joinedText ? WordPlace::text : WordPlace::value;
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
        if (m_isRunKnown) noteShared(variables[slot], scope.uses()[slot]);
        suspect(variables[slot], scope.uses()[slot], known);
    }
    for (const TextUse& use : scope.textUses())
        warnOfText(use, variables[use.slot], scope.uses()[use.slot].held);
    m_isRunKnown = true;
}

/// What is no text, where it is typed or compared with one.
void NameCheck::warnOfText(const TextUse& use, NameId name, Held held) {
    const bool isRecord = held == Held::dialog || held == Held::alert;
    if (held == Held::other || (use.isTyped && !isRecord)) return;
    m_out.warn(use.offset, heldAdvice(held, spelling(name)));
}

/// A name that a handler and what runs both set: they have a variable each.
void NameCheck::noteShared(NameId name, const VariableUse& use) {
    if (use.isRead && use.isSet && isSetByRun(name))
        m_out.code().adviceInHandlers.emplace(name, sharingAdvice(spelling(name)));
}

void NameCheck::suspect(NameId name, const VariableUse& use, const std::vector<NameId>& known) {
    if (!use.isRead || use.isSet || m_suspects.size() == mostSuspects) return;
    const std::string& called = spelling(name);
    if (use.role == NameRole::compared) {
        // The comparison is warned of already.
        m_out.code().advice.emplace(name, comparisonAdvice(called));
        return;
    }
    const std::string meant = slipOf(name, use.role, known);
    const std::string advice = meant.empty() ? quotesAdvice(called).text() : meant;
    m_suspects.push_back({use.offset, neverSetAdvice(called, advice)});
    if (!meant.empty() || use.role == NameRole::text) m_out.code().advice.emplace(name, advice);
}

/// Which slip has led to the name; empty if none is known, so that it may be a text without quotes.
std::string NameCheck::slipOf(NameId name, NameRole role, const std::vector<NameId>& known) const {
    const std::string& called = spelling(name);
    if (m_handlers.contains(name)) {
        return sentence("Hints", "A handler is called with parentheses: %1().")
            .arg(shortened(sourceForm(called)));
    }
    if (isSetByRun(name)) return sharingAdvice(called);
    std::vector<NameId> all = known;
    const std::vector<NameId>& shared = m_out.script().names();
    all.insert(all.end(), shared.begin(),
               shared.begin() + static_cast<std::ptrdiff_t>(std::min(shared.size(), mostCompared)));
    const std::string similar = similarTo(called, all);
    if (!similar.empty()) return didYouMean(sourceForm(similar));
    std::string foreign = role == NameRole::program ? "" : foreignWordAdvice(called);
    if (!foreign.empty()) return foreign;
    const std::string word = wordLike(called, placeOf(role));
    if (!word.empty()) return didYouMean(word);
    return role == NameRole::program ? programAdvice(called) : meantBy(called, role);
}

/// The nearest name, if it is near enough for a slip.
std::string NameCheck::similarTo(const std::string& name, const std::vector<NameId>& known) const {
    constexpr std::size_t shortest = 4;
    Misspelling misspelling(name, shortest);
    for (const NameId other : known) misspelling.compare(spelling(other));
    return misspelling.meant();
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
