// SPDX-License-Identifier: MIT
//
// The layouts that every test run goes through; LayoutsSoak.cpp has the others.
#include "desktop/LayoutsTest.h"

bool LayoutsTest::isUnderAllLocks() { return false; }

INSTANTIATE_TEST_SUITE_P(Some, LayoutsTest,
                         testing::Values(NamedLayout{"us"}, NamedLayout{"us", "intl"}, NamedLayout{"de"},
                                         NamedLayout{"fr"}, NamedLayout{"fr", "bepo"}, NamedLayout{"cz"},
                                         NamedLayout{"gr"}, NamedLayout{"ca", "multix"}, NamedLayout{"jp"},
                                         NamedLayout{"us", "", "compose:menu"}, NamedLayout{"us,ru"},
                                         NamedLayout{"us,ru", "", "", 1}),
                         nameOfParameter<NamedLayout>);
