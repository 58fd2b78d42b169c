// SPDX-License-Identifier: MIT
#include "HostileLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

namespace {

class CommaNumbers : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

}  // namespace

HostileLocale::HostileLocale()
    : m_previous(std::locale::global(std::locale(std::locale::classic(), new CommaNumbers))),
      m_previousC(std::setlocale(LC_ALL, nullptr)) {
    setenv("LOCPATH", KEYRILL_TEST_LOCALES, 1);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
        ADD_FAILURE() << "no locale de_DE.UTF-8 in " KEYRILL_TEST_LOCALES;
    }
}

HostileLocale::~HostileLocale() {
    std::locale::global(m_previous);
    std::setlocale(LC_ALL, m_previousC.c_str());
}
