// SPDX-License-Identifier: MIT
#pragma once

#include <boost/container/deque.hpp>
#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstddef>
#include <string>

#include "core/Action.h"
#include "core/AppendedText.h"

/// A recorded or loaded sequence of actions. Made and numbered by MacroManager, held by boost::shared_ptr.
///
/// A loaded macro has a script text and no actions. Rendering an empty action pointer ends the process.
class Macro {
  public:
    /// What script() waits after each action, in seconds.
    static constexpr double pauseAfterAction = 0.01;

    Macro() = default;
    Macro(const Macro&) = delete;
    Macro& operator=(const Macro&) = delete;

    /// 1 or more once the manager has given it; 0 before.
    int macroId() const { return m_macroId; }
    void setMacroId(int macroId) { m_macroId = macroId; }

    /// Whether there are no actions; true for a loaded macro.
    bool isEmpty() const { return m_actions.empty(); }

    /// Appends at the end, without a limit and without rendering anything.
    void addAction(const boost::shared_ptr<Action>& action) { m_actions.push_back(action); }

    std::size_t actionCount() const { return m_actions.size(); }

    /// Puts it in before the action of that index, from 0 to actionCount(). Costs as much as all that
    /// follows, and the next fullDisplayText() as much as all.
    void insertAction(std::size_t index, const boost::shared_ptr<Action>& action);

    /// Takes the text as it stands for the script; an empty one makes the next script() build it afresh.
    void setScript(const std::string& script) { m_script = script; }

    /// The script that plays the macro, built at the first call and then kept for good: actions that are
    /// added later do not appear in it.
    std::string script() const;

    /// For a menu item, UTF-8: the texts of all actions, or of the first and last ten around "..." where
    /// there are more than twenty.
    std::string displayText() const;

    /// The texts of all actions, UTF-8. The reference is good until the next call of a non-const member.
    ///
    /// Why a reference: it is asked for after each recorded key, and must cost no more as the macro grows, so
    /// only the actions added since the last call are rendered and appended to the text that is kept.
    const std::string& fullDisplayText() const;

  private:
    std::string buildScript() const;
    std::string rangeText(std::size_t first, std::size_t last) const;

    /// In blocks, because a vector would move all of them now and then, at the cost of one key press; large
    /// enough that the list of blocks, which a deque moves, stays short, and no burden to the many macros of
    /// a few keys that a history has: half a kilobyte each.
    using Blocks = boost::container::deque_options_t<boost::container::block_size<32U>>;
    boost::container::deque<boost::shared_ptr<Action>, void, Blocks> m_actions;
    int m_macroId = 0;

    /// Empty while not built.
    mutable std::string m_script;
    /// The texts of the first m_renderedActions actions.
    mutable AppendedText m_fullText;
    mutable std::size_t m_renderedActions = 0;
};
