// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory>

#include "platform/x11/server/ClientMessage.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/HiddenWindow.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/ServerClock.h"
#include "platform/x11/server/WindowTree.h"
#include "platform/x11/server/XConnection.h"
#include "support/XServer.h"

namespace {

using Numbers = std::vector<std::uint32_t>;
using Windows = std::vector<xcb_window_t>;

/// What the rooms of the X session ask of a server, asked of a real one.
class ServerTest : public testing::Test {
  protected:
    x11::Property property(const char* name) const {
        return {m_connection, m_window.id(), m_connection.atom(name)};
    }
    /// A window that can be seen, within another.
    xcb_window_t shown(xcb_window_t parent) const {
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, parent, 0, 0, 20, 20, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(m_connection, window);
        return window;
    }

    XServer m_server;
    x11::XConnection m_connection = x11::XConnection::open(m_server.display()).value();
    x11::HiddenWindow m_window{m_connection};
    x11::WindowTree m_tree{m_connection};
};

TEST_F(ServerTest, readsTheNumbersOfAProperty) {
    const x11::Property numbers = property("NUMBERS");
    numbers.write(XCB_ATOM_CARDINAL, Numbers{3, 1, 2});
    numbers.append(XCB_ATOM_CARDINAL, Numbers{9});
    EXPECT_EQ(numbers.numbers(XCB_ATOM_CARDINAL, 10), (Numbers{3, 1, 2, 9}));
    EXPECT_EQ(numbers.numbers(XCB_GET_PROPERTY_TYPE_ANY, 2), (Numbers{3, 1}));
    EXPECT_EQ(numbers.number(XCB_ATOM_CARDINAL), 3U);
}

TEST_F(ServerTest, readsTheTextOfAPropertyWithItsZeros) {
    using namespace std::string_view_literals;
    const x11::Property text = property("TEXT");
    text.write(XCB_ATOM_STRING, "one\0two\0"sv);
    EXPECT_EQ(text.text(XCB_ATOM_STRING, 64), "one\0two\0"sv);
    EXPECT_EQ(text.text(XCB_ATOM_STRING, 4), "one\0"sv);
}

TEST_F(ServerTest, readsNothingOfAnotherFormatOrType) {
    const x11::Property text = property("TEXT");
    text.write(XCB_ATOM_STRING, "text");
    EXPECT_EQ(text.numbers(XCB_GET_PROPERTY_TYPE_ANY, 10), Numbers{});
    EXPECT_EQ(text.number(XCB_ATOM_STRING), 0U);
    EXPECT_EQ(text.text(XCB_ATOM_CARDINAL, 64), "");
    const x11::Property numbers = property("NUMBERS");
    numbers.write(XCB_ATOM_CARDINAL, Numbers{1});
    EXPECT_EQ(numbers.text(XCB_GET_PROPERTY_TYPE_ANY, 64), "");
    EXPECT_EQ(numbers.numbers(XCB_ATOM_WINDOW, 10), Numbers{});
}

TEST_F(ServerTest, takesAPropertyAway) {
    const x11::Property text = property("TEXT");
    text.write(XCB_ATOM_STRING, "some text");
    EXPECT_EQ(text.take(4).bytes, "some");
    EXPECT_TRUE(text.exists());
    const x11::Property::Content whole = text.take(64);
    EXPECT_EQ(whole.type, XCB_ATOM_STRING);
    EXPECT_EQ(whole.bytes, "some text");
    EXPECT_FALSE(text.exists());
    EXPECT_EQ(text.take(64).type, XCB_ATOM_NONE);
}

TEST_F(ServerTest, removesAProperty) {
    const x11::Property numbers = property("NUMBERS");
    numbers.write(XCB_ATOM_CARDINAL, Numbers{});
    EXPECT_TRUE(numbers.exists());
    numbers.remove();
    EXPECT_FALSE(numbers.exists());
}

TEST_F(ServerTest, hidesAWindowThatGoesWithItsObject) {
    auto window = std::make_unique<x11::HiddenWindow>(m_connection);
    const xcb_window_t id = window->id();
    EXPECT_EQ(m_tree.lineOf(id), Windows{id});
    EXPECT_EQ(m_tree.childrenOf(m_connection.root()), (Windows{m_window.id(), id}));
    EXPECT_FALSE(m_tree.isOnScreen(id));
    const x11::HiddenWindow moved = std::move(*window);
    window.reset();
    EXPECT_EQ(m_tree.childrenOf(m_connection.root()), (Windows{m_window.id(), id}));
    xcb_set_selection_owner(m_connection, id, XCB_ATOM_PRIMARY, XCB_CURRENT_TIME);
    EXPECT_EQ(m_connection.ownerOf(XCB_ATOM_PRIMARY), id);
}

TEST_F(ServerTest, losesWhatAHiddenWindowOwnedWithIt) {
    {
        const x11::HiddenWindow window(m_connection);
        xcb_set_selection_owner(m_connection, window.id(), XCB_ATOM_PRIMARY, XCB_CURRENT_TIME);
        EXPECT_EQ(m_connection.ownerOf(XCB_ATOM_PRIMARY), window.id());
    }
    EXPECT_EQ(m_connection.ownerOf(XCB_ATOM_PRIMARY), XCB_WINDOW_NONE);
    EXPECT_EQ(m_tree.childrenOf(m_connection.root()), Windows{m_window.id()});
}

TEST_F(ServerTest, knowsWhichWindowGetsTheKeysAndWhereItLies) {
    const xcb_window_t outer = shown(m_connection.root());
    const xcb_window_t inner = shown(outer);
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, inner, XCB_CURRENT_TIME);
    EXPECT_EQ(m_tree.focus(), inner);
    EXPECT_EQ(m_tree.receiver(), inner);
    EXPECT_EQ(m_tree.lineOf(inner), (Windows{inner, outer}));
    EXPECT_EQ(m_tree.childrenOf(outer), Windows{inner});
    EXPECT_TRUE(m_tree.isOnScreen(inner));
    xcb_unmap_window(m_connection, outer);
    EXPECT_FALSE(m_tree.isOnScreen(inner));
}

TEST_F(ServerTest, findsTheWindowBelowThePointerWhereThatDecides) {
    const xcb_window_t outer = shown(m_connection.root());
    const xcb_window_t inner = shown(outer);
    xcb_warp_pointer(m_connection, XCB_WINDOW_NONE, m_connection.root(), 0, 0, 0, 0, 5, 5);
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, XCB_INPUT_FOCUS_POINTER_ROOT, XCB_CURRENT_TIME);
    EXPECT_EQ(m_tree.focus(), XCB_INPUT_FOCUS_POINTER_ROOT);
    EXPECT_EQ(m_tree.receiver(), inner);
    EXPECT_EQ(m_tree.lineOf(XCB_INPUT_FOCUS_POINTER_ROOT), Windows{});
    EXPECT_EQ(m_tree.lineOf(m_connection.root()), Windows{});
}

TEST_F(ServerTest, takesAWindowThatHasGoneForOneWithNothing) {
    const xcb_window_t window = shown(m_connection.root());
    const x11::Property name(m_connection, window, XCB_ATOM_WM_NAME);
    name.write(XCB_ATOM_STRING, "name");
    EXPECT_TRUE(name.exists());
    xcb_destroy_window(m_connection, window);
    EXPECT_FALSE(name.exists());
    EXPECT_EQ(m_tree.childrenOf(window), Windows{});
    EXPECT_FALSE(m_tree.isOnScreen(window));
}

TEST_F(ServerTest, asksTheServerForItsTime) {
    const x11::ServerClock clock(m_connection);
    const xcb_timestamp_t first = clock.now();
    EXPECT_NE(first, XCB_CURRENT_TIME);
    EXPECT_LT(clock.now() - first, 60'000U);
}

TEST_F(ServerTest, knowsTheAnswerOfTheClockAmongOtherEvents) {
    const x11::HiddenWindow other(m_connection, XCB_EVENT_MASK_PROPERTY_CHANGE);
    x11::Property(m_connection, other.id(), XCB_ATOM_CARDINAL).write(XCB_ATOM_CARDINAL, Numbers{1});
    const x11::ServerClock clock(m_connection);
    clock.ask();
    m_connection.roundTrip();
    EXPECT_EQ(clock.answerIn(m_connection.nextEvent()), std::nullopt);
    EXPECT_NE(clock.answerIn(m_connection.nextEvent()), std::nullopt);
    EXPECT_FALSE(m_connection.nextEvent());
}

TEST_F(ServerTest, deliversAMessageToTheWindowsMaker) {
    const x11::ClientMessage message{m_connection.root(), XCB_ATOM_INTEGER, {1, 2, 3, 4, 5}};
    message.sendTo(m_connection, m_window.id());
    const x11::Event event = m_connection.awaitEvent();
    const auto* received = event.as(x11::clientMessage);
    ASSERT_NE(received, nullptr);
    EXPECT_EQ(received->window, m_connection.root());
    EXPECT_EQ(received->type, XCB_ATOM_INTEGER);
    EXPECT_EQ(received->format, 32);
    EXPECT_EQ(Numbers(std::begin(received->data.data32), std::end(received->data.data32)),
              (Numbers{1, 2, 3, 4, 5}));
}

TEST_F(ServerTest, hasTheExtensionsThatAreNeeded) {
    const x11::Extensions extensions(m_connection);
    EXPECT_TRUE(extensions.use({x11::Extension::input, x11::Extension::keyboard, x11::Extension::test}));
    EXPECT_NE(extensions.inputOpcode(), 0);
    EXPECT_NE(extensions.firstKeyboardEvent(), 0);
    EXPECT_TRUE(extensions.has("XTEST"));
    EXPECT_FALSE(extensions.has("XWAYLAND"));
}

}  // namespace
