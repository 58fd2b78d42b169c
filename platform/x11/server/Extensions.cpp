// SPDX-License-Identifier: MIT
#include "platform/x11/server/Extensions.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <string>

#include "platform/Sentence.h"
#include "platform/x11/server/XReply.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

constexpr std::uint16_t inputMajor = 2;
constexpr std::uint16_t inputMinor = 2;

Error missing(const std::string& what) {
    return Error{what,
                 sentence("Session", "Use a newer X server, or switch the extension on in its settings.")};
}

xcb_extension_t& protocolOf(Extension extension) {
    switch (extension) {
        case Extension::input:
            return xcb_input_id;
        case Extension::keyboard:
            return xcb_xkb_id;
        case Extension::test:
            break;
    }
    return xcb_test_id;
}

}  // namespace

Result<> Extensions::use(std::initializer_list<Extension> needed) const {
    // All are asked for before the first answer is waited for.
    for (const Extension extension : needed)
        xcb_prefetch_extension_data(m_connection, &protocolOf(extension));
    for (const Extension extension : needed) {
        Result<> used = use(extension);
        if (!used) return used;
    }
    return {};
}

Result<> Extensions::use(Extension extension) const {
    switch (extension) {
        case Extension::input:
            return useInput();
        case Extension::keyboard:
            return useKeyboard();
        case Extension::test:
            break;
    }
    return useTest();
}

Result<> Extensions::useInput() const {
    if (!has(xcb_input_id)) {
        return missing(sentence("Session", "The X server must have XInput 2.2 or newer, but has no XInput."));
    }
    const auto version =
        replyTo(m_connection, xcb_input_xi_query_version(m_connection, inputMajor, inputMinor),
                xcb_input_xi_query_version_reply);
    if (!version) {
        return missing(
            sentence("Session", "The X server must have XInput 2.2 or newer, but does not answer."));
    }
    const bool isNewEnough = version->major_version > inputMajor ||
                             (version->major_version == inputMajor && version->minor_version >= inputMinor);
    if (isNewEnough) return {};
    return missing(
        sentence("Session", "The X server must have XInput 2.2 or newer, but has %1.")
            .arg(std::to_string(version->major_version) + "." + std::to_string(version->minor_version)));
}

Result<> Extensions::useKeyboard() const {
    constexpr std::uint16_t major = 1;
    constexpr std::uint16_t minor = 0;
    const Error unusable =
        missing(sentence("Session", "The X server must have the XKB extension, but it cannot be used."));
    if (!has(xcb_xkb_id)) return unusable;
    const auto reply =
        replyTo(m_connection, xcb_xkb_use_extension(m_connection, major, minor), xcb_xkb_use_extension_reply);
    return reply && reply->supported != 0 ? Result<>() : unusable;
}

Result<> Extensions::useTest() const {
    if (has(xcb_test_id)) return {};
    return missing(sentence("Session", "The X server must have the XTEST extension, but it has not."));
}

std::uint8_t Extensions::inputOpcode() const {
    return xcb_get_extension_data(m_connection, &xcb_input_id)->major_opcode;
}

std::uint8_t Extensions::firstKeyboardEvent() const {
    return xcb_get_extension_data(m_connection, &xcb_xkb_id)->first_event;
}

bool Extensions::has(xcb_extension_t& extension) const {
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(m_connection, &extension);
    return reply != nullptr && reply->present != 0;
}

bool Extensions::has(std::string_view name) const {
    const auto reply = replyTo(
        m_connection, xcb_query_extension(m_connection, static_cast<std::uint16_t>(name.size()), name.data()),
        xcb_query_extension_reply);
    return reply && reply->present != 0;
}

}  // namespace x11
