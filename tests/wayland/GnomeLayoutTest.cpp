// SPDX-License-Identifier: MIT
//
// keyrill under a real GNOME whose user has several layouts, and switches between them by hand.
#include "compositor/Field.h"
#include "wayland/GnomeSession.h"

namespace {

class GnomeLayoutTest : public GnomeSessionTest {
  protected:
    explicit GnomeLayoutTest(const std::string& other = "de")
        : GnomeSessionTest(
              {{"org.gnome.desktop.input-sources", "sources", "[('xkb', 'us'), ('xkb', '" + other + "')]"}}),
          m_other(other) {}

    /// By GNOME's own combination.
    void switchToOther() {
        hands().stroke({xkey::super, xkey::space});
        const auto used = [this] {
            return shell().setting("org.gnome.desktop.input-sources", "mru-sources");
        };
        ASSERT_TRUE(eventually([&] { return used().starts_with("[('xkb', '" + m_other + "')"); })) << used();
    }

  private:
    std::string m_other;
};

class GnomeRussianTest : public GnomeLayoutTest {
  protected:
    GnomeRussianTest() : GnomeLayoutTest("ru") {}
};

TEST_F(GnomeLayoutTest, aTextIsTypedByTheLayoutThatIsInForce) {
    startWithHotKeys("keystroke \"zy\"");
    const Field field(shell(), Field::Toolkit::gtk);
    strokeHotKey(xkey::p);
    allowKeys();
    ASSERT_EQ(field.text("zy"), "zy");
    switchToOther();
    letGo();
    // By hand the same keys type others now.
    hands().type("zy");
    ASSERT_EQ(field.text("zyyz"), "zyyz");
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("zyyzzy"), "zyyzzy");
}

TEST_F(GnomeRussianTest, hotKeysRecordingsAndTextsAreThoseOfTheLayoutThatIsInForce) {
    startWithHotKeys("keystroke \"x\"");
    const Field field(shell(), Field::Toolkit::gtk);
    const std::string before = taker(xkey::r);
    switchToOther();
    ASSERT_TRUE(eventually([&] { return taker(xkey::r) != "0" && taker(xkey::r) != before; }));
    EXPECT_EQ(at("keyrill-record", "binding"), "'<Control><Super>Cyrillic_ka'");
    strokeHotKey(xkey::r);
    ASSERT_TRUE(hasFocus(recordHere)) << at("keyrill-record", "binding");
    hands().type("ab");
    strokeHotKey(xkey::s);
    ASSERT_TRUE(hasFocus("field"));
    strokeHotKey(xkey::p);
    allowKeys();
    EXPECT_EQ(field.text("\xD1\x84\xD0\xB8"), "\xD1\x84\xD0\xB8");
}

}  // namespace
