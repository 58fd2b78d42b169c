// SPDX-License-Identifier: MIT
//
// The layout of GNOME's user, from settings that another program writes.
#include "platform/desktops/GnomeLayouts.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "desktops/Woken.h"
#include "linux/desktop/PrivateBus.h"

namespace {

using Sources = GnomeLayouts::Sources;

const Sources fourLayouts = {{"xkb", "us"}, {"xkb", "de"}, {"xkb", "fr+oss"}, {"xkb", "ru"}};

TEST(GnomeLayoutsTest, theOneThatWasUsedLastIsInForce) {
    EXPECT_EQ(GnomeLayouts::groupOf(fourLayouts, {{"xkb", "us"}, {"xkb", "de"}}), 0U);
    EXPECT_EQ(GnomeLayouts::groupOf(fourLayouts, {{"xkb", "fr+oss"}, {"xkb", "us"}}), 2U);
}

TEST(GnomeLayoutsTest, aKeymapHasThreeOfThemAtATime) {
    EXPECT_EQ(GnomeLayouts::groupOf(fourLayouts, {{"xkb", "ru"}}), 0U);
}

TEST(GnomeLayoutsTest, whatIsNotAmongThemIsTheFirst) {
    EXPECT_EQ(GnomeLayouts::groupOf(fourLayouts, {}), 0U);
    EXPECT_EQ(GnomeLayouts::groupOf(fourLayouts, {{"xkb", "gr"}}), 0U);
    EXPECT_EQ(GnomeLayouts::groupOf({}, {{"xkb", "de"}}), 0U);
}

TEST(GnomeLayoutsTest, inputMethodsAndRepetitionsAreNone) {
    const Sources sources = {{"ibus", "anthy"}, {"xkb", "us"}, {"xkb", "us"}, {"xkb", "de"}};
    EXPECT_EQ(GnomeLayouts::groupOf(sources, {{"xkb", "de"}}), 1U);
    EXPECT_EQ(GnomeLayouts::groupOf(sources, {{"ibus", "anthy"}}), 0U);
}

/// With settings in a file of their own.
class GnomeSettingsTest : public testing::Test {
  protected:
    // GSettings chooses once in a process where it looks, and in whose loop it notices changes.
    struct World {
        World() {
            setenv("GSETTINGS_BACKEND", "keyfile", 1);
            setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        }
        TemporaryFolder folder;
        PrivateBus bus;
        SessionBus session{bus.address()};
    };
    static void SetUpTestSuite() { world() = std::make_unique<World>(); }
    static void TearDownTestSuite() { world().reset(); }

    static void set(const char* key, const std::string& value) {
        ASSERT_EQ(Child({"gsettings", "set", "org.gnome.desktop.input-sources", key, value}).wait(), 0);
    }
    /// As the loop of a program would notice it: it looks when it is woken, and not before.
    bool becomes(std::uint32_t group) {
        bus().update();
        while (m_layouts.group() != group && isWoken(bus().fileDescriptor())) bus().update();
        return m_layouts.group() == group;
    }
    GnomeLayouts& layouts() { return m_layouts; }
    static SessionBus& bus() { return world()->session; }

  private:
    /// Of all tests: a bus and its settings take their time.
    static std::unique_ptr<World>& world() {
        static std::unique_ptr<World> world;
        return world;
    }
    GnomeLayouts m_layouts{bus()};
};

TEST_F(GnomeSettingsTest, whatGnomeWritesIsRead) {
    ASSERT_TRUE(GnomeLayouts::areKnown());
    set("sources", "[('xkb', 'us'), ('xkb', 'de'), ('xkb', 'fr')]");
    set("mru-sources", "[('xkb', 'de'), ('xkb', 'us')]");
    EXPECT_TRUE(becomes(1));
    set("mru-sources", "[('xkb', 'fr'), ('xkb', 'de')]");
    EXPECT_TRUE(becomes(2));
    set("mru-sources", "[]");
    EXPECT_TRUE(becomes(0));
}

TEST_F(GnomeSettingsTest, whoeverWishesIsToldOfAChange) {
    int changes = 0;
    layouts().observe([&changes] { ++changes; });
    set("sources", "[('xkb', 'us'), ('xkb', 'de')]");
    set("mru-sources", "[('xkb', 'de')]");
    EXPECT_TRUE(becomes(1));
    EXPECT_GT(changes, 0);
    const int before = changes;
    set("mru-sources", "[('xkb', 'us')]");
    EXPECT_TRUE(becomes(0));
    EXPECT_GT(changes, before);
}

TEST_F(GnomeSettingsTest, noProgramSwitchesThem) {
    EXPECT_FALSE(layouts().canSwitch());
    EXPECT_FALSE(layouts().setGroup(1));
}

TEST_F(GnomeSettingsTest, anotherDesktopIsNotGnome) { EXPECT_FALSE(GnomeLayouts::isThere(bus())); }

}  // namespace
