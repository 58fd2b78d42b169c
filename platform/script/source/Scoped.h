// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace script {

/// Gives a variable another value for its lifetime.
template <typename Value>
class Scoped {
  public:
    Scoped(Value& variable, Value value) : m_variable(variable), m_former(std::exchange(variable, value)) {}
    ~Scoped() { m_variable = m_former; }
    Scoped(const Scoped&) = delete;
    Scoped& operator=(const Scoped&) = delete;

  private:
    Value& m_variable;
    Value m_former;
};

}  // namespace script
