// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <string>

#include "core/Action.h"

namespace actionpack {

/// A pause. Its modifiers mean nothing.
class Delay : public Action {
  public:
    /// Seconds; any value is kept and rendered as it is, negative ones too.
    explicit Delay(double seconds) : m_seconds(seconds) {}

    /// "\tdelay 0.5\n": at most six significant digits, an exponent below 1e-04 and from 1e+06 on.
    std::string scriptLine() const override;

    /// "<⌛ 0.50>": always two decimals.
    std::string displayText() const override;

  private:
    double m_seconds;
};

}  // namespace actionpack

/// A pause in a shared pointer. Throws as createShared does.
boost::shared_ptr<actionpack::Delay> createDelay(const double& seconds);
