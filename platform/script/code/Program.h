// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/script/source/ScriptError.h"

namespace script {

struct Bytecode;

/// A compiled script, on its own. A program that was moved away can only be destroyed.
class Program {
  public:
    explicit Program(Bytecode code);
    ~Program();
    Program(Program&&) noexcept;
    Program& operator=(Program&&) noexcept;

    /// What the compiler noticed: codes that only this program plays, or that no key has.
    const std::vector<ScriptWarning>& warnings() const;
    /// The literal texts that the script may type, in the order of the source.
    const std::vector<std::string>& typedTexts() const;

    const Bytecode& code() const { return *m_code; }

  private:
    std::unique_ptr<const Bytecode> m_code;
};

}  // namespace script
