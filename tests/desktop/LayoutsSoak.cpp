// SPDX-License-Identifier: MIT
//
// Layouts of many countries, alone and in pairs, under all states of the locks.
#include "desktop/LayoutsTest.h"

bool LayoutsTest::isUnderAllLocks() { return true; }

namespace {

std::vector<NamedLayout> manyLayouts() {
    std::vector<NamedLayout> layouts{{"us", "dvorak"},
                                     {"us", "colemak"},
                                     {"us", "altgr-intl"},
                                     {"us", "mac"},
                                     {"de", "nodeadkeys"},
                                     {"de", "bone"},
                                     {"ca", "multix"},
                                     {"ch", "fr"},
                                     {"cz", "qwerty"},
                                     {"fr", "bepo"},
                                     {"de", "neo"},
                                     {"pl", "dvorak"},
                                     {"jp", "OADG109A"},
                                     {"us", "", "caps:shiftlock"},
                                     {"us", "", "compose:menu"},
                                     {"de", "", "lv3:caps_switch"},
                                     {"us", "", "ctrl:swapcaps"},
                                     {"us", "", "altwin:swap_alt_win"}};
    for (const char* country :
         {"us", "gb", "de", "fr", "es", "it", "pt", "br", "cz",  "sk", "pl", "hu", "ro", "hr",    "si", "tr",
          "gr", "ru", "ua", "bg", "by", "rs", "mk", "il", "ara", "ir", "th", "ge", "am", "kz",    "in", "jp",
          "kr", "se", "no", "dk", "fi", "ch", "be", "ca", "lv",  "lt", "ee", "is", "vn", "latam", "epo"}) {
        layouts.push_back({country});
    }
    for (const char* pair : {"us,ru", "de,ru", "us,gr", "cz,us", "fr,ara", "us,il", "gb,th", "se,rs"}) {
        layouts.push_back({pair});
        layouts.push_back({pair, "", "", 1});
    }
    return layouts;
}

INSTANTIATE_TEST_SUITE_P(Many, LayoutsTest, testing::ValuesIn(manyLayouts()), nameOfParameter<NamedLayout>);

}  // namespace
