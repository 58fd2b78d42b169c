// SPDX-License-Identifier: MIT
#include "display/Connection.h"

#include <stdexcept>
#include <utility>

x11::XConnection connectTo(const std::string& display) {
    Result<x11::XConnection> connection = x11::XConnection::open(display);
    if (!connection) throw std::runtime_error(connection.error().message);
    return std::move(connection).value();
}
