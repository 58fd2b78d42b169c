// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "HostileLocale.h"

/// A test that runs twice, in the C locale and in a hostile one.
class LocaleTest : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (GetParam()) m_locale.emplace();
    }

  private:
    std::optional<HostileLocale> m_locale;
};

/// Runs the tests of a fixture derived from LocaleTest.
#define KEYRILL_IN_BOTH_LOCALES(fixture)                                                   \
    INSTANTIATE_TEST_SUITE_P(In, fixture, testing::Bool(), [](const auto& parameterInfo) { \
        return parameterInfo.param ? "GermanLocale" : "CLocale";                           \
    })
