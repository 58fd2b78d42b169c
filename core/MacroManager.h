// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstddef>
#include <map>

#include "core/Macro.h"

/// Owns all macros of a run and gives out their numbers, 1 and up. Nothing is removed, nothing is saved.
///
/// One per process, made at first use. Main thread only.
class MacroManager {
  public:
    MacroManager() = default;
    MacroManager(const MacroManager&) = delete;
    MacroManager& operator=(const MacroManager&) = delete;

    /// The manager of the process. Tests that need a fresh one reset this pointer: the next call fills it
    /// again. Throws as createShared does.
    static boost::shared_ptr<MacroManager>& instance();

    /// A new empty macro under the next number; numbers are never used twice. Throws as createShared does.
    static boost::shared_ptr<Macro> createMacro();

    /// The macro under a number. One that was never given out answers an empty pointer, and keeps an empty
    /// entry from then on.
    static boost::shared_ptr<Macro> macro(int macroId);

    /// Macros and empty entries together.
    std::size_t entryCount() const { return m_macros.size(); }

  private:
    std::map<int, boost::shared_ptr<Macro>> m_macros;
    int m_lastId = 0;
};
