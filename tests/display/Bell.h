// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/x11/server/XConnection.h"

/// A client that hears the keyboard's bell.
class Bell {
  public:
    explicit Bell(const std::string& display);

    /// How often it has rung since the last call, all that other clients did before included.
    int rung();

  private:
    x11::XConnection m_connection;
    std::uint8_t m_firstEvent = 0;
};
