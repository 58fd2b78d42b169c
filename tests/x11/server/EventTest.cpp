// SPDX-License-Identifier: MIT
#include "platform/x11/server/Event.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

constexpr std::uint8_t sentByClient = 0x80;
constexpr std::uint8_t extension = 131;
constexpr std::uint8_t otherExtension = 132;

/// As xcb gives events: in memory of malloc's.
template <typename Body>
x11::Event eventOf(const Body& body) {
    void* memory = std::calloc(1, sizeof(xcb_generic_event_t));
    *static_cast<Body*>(memory) = body;
    return x11::Event(static_cast<xcb_generic_event_t*>(memory));
}

xcb_property_notify_event_t change(std::uint8_t responseType) {
    xcb_property_notify_event_t event{};
    event.response_type = responseType;
    event.atom = 7;
    return event;
}

TEST(EventTest, isReadAsWhatItIs) {
    const x11::Event event = eventOf(change(XCB_PROPERTY_NOTIFY));
    ASSERT_NE(event.as(x11::propertyNotify), nullptr);
    EXPECT_EQ(event.as(x11::propertyNotify)->atom, 7U);
    EXPECT_EQ(event.as(x11::selectionNotify), nullptr);
    EXPECT_FALSE(event.is(x11::keyPress));
}

TEST(EventTest, isTheSameWhenAnotherClientSentIt) {
    const x11::Event event = eventOf(change(XCB_PROPERTY_NOTIFY | sentByClient));
    EXPECT_TRUE(event.is(x11::propertyNotify));
    EXPECT_NE(event.as(x11::propertyNotify), nullptr);
}

TEST(EventTest, isNothingWhenNoneHasCome) {
    const x11::Event none;
    EXPECT_FALSE(none);
    EXPECT_FALSE(x11::Event(nullptr));
    EXPECT_FALSE(none.is(0));
    EXPECT_EQ(none.as(x11::propertyNotify), nullptr);
    EXPECT_EQ(none.generic(extension), -1);
    EXPECT_EQ(none.keyboard(extension), -1);
}

TEST(EventTest, tellsGenericEventsByTheirExtension) {
    xcb_ge_generic_event_t body{};
    body.response_type = XCB_GE_GENERIC;
    body.extension = extension;
    body.event_type = 13;
    const x11::Event event = eventOf(body);
    EXPECT_EQ(event.generic(extension), 13);
    EXPECT_EQ(event.generic(otherExtension), -1);
    EXPECT_EQ(event.keyboard(extension), -1);
}

TEST(EventTest, tellsTheKeyboardsEventsByWhatStandsInPlaceOfADetail) {
    xcb_generic_event_t body{};
    body.response_type = 85;
    body.pad0 = 2;
    const x11::Event event = eventOf(body);
    EXPECT_EQ(event.keyboard(85), 2);
    EXPECT_EQ(event.keyboard(86), -1);
    EXPECT_EQ(event.generic(85), -1);
}

}  // namespace
