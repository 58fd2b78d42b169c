// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <array>
#include <string>

#include "app/languages/Catalogues.h"

/// The application object of what speaks to a terminal alone, in the user's language. Needs no display. To be
/// made in the place of the whole program's, and not beside it.
class TerminalApplication {
  public:
    TerminalApplication() = default;
    TerminalApplication(const TerminalApplication&) = delete;
    TerminalApplication& operator=(const TerminalApplication&) = delete;

  private:
    std::string m_name = "keyrill";
    std::array<char*, 2> m_arguments = {m_name.data(), nullptr};
    int m_count = 1;
    QCoreApplication m_application{m_count, m_arguments.data()};
    Catalogues m_catalogues;
};
