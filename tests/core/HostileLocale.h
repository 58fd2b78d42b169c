// SPDX-License-Identifier: MIT
#pragma once

#include <locale>
#include <string>

/// While it lives, numbers have a decimal comma and grouped digits for all that minds a locale: C++ streams
/// by the global locale, printf and its kind by the C locale (German, built with the tests). A system that
/// refuses the C locale fails the test.
class HostileLocale {
  public:
    HostileLocale();
    ~HostileLocale();
    HostileLocale(const HostileLocale&) = delete;
    HostileLocale& operator=(const HostileLocale&) = delete;

  private:
    std::locale m_previous;
    std::string m_previousC;
};
