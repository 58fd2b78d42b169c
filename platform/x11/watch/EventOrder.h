// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>

#include "platform/monitor/HandKeys.h"
#include "platform/monitor/HotKeyTable.h"
#include "platform/monitor/KeyInterpreter.h"
#include "platform/monitor/OwnStrokes.h"
#include "platform/x11/watch/HotKeyGrabs.h"
#include "platform/x11/watch/RawKeySource.h"
#include "platform/x11/watch/RepeatSource.h"

namespace x11 {

/// Makes one order of what comes on the three connections, that of the server, and has it interpreted.
///
/// The raw events set the order: each has its place in it. A hot key is a raw press that the grabbing
/// connection got too, a repeat is put before the first raw event that came after it. A round trip on a
/// connection brings all that the server has already done there, so that nothing is decided too early.
class EventOrder {
  public:
    /// All outlive this; `repeats` may be null.
    struct Streams {
        RawKeySource& raw;
        HotKeyGrabs& grabs;
        RepeatSource* repeats;
    };
    struct Rules {
        HotKeyTable& hotKeys;
        OwnStrokes& own;
        HandKeys& hands;
        CancelWatch& cancel;
        KeyboardState& keyboard;
    };
    EventOrder(const Streams& streams, const Rules& rules, KeyInterpreter& interpreter,
               std::function<void()> keymapTouched);

    /// Reads all that has come and interprets it. Leaves nothing in the connections' own queues.
    void workOff();
    /// The same with all that the server has done until now.
    void catchUp();

    /// The user wishes to stop: takes back all hot keys that wait, but for those that cancel.
    void dropCommands();

  private:
    /// The same of those alone that play: the stop is among the hot keys, and those before it are in order.
    void dropPlays();
    bool hasRepeats() const;
    void workOffRawEvents();
    void workOffRepeats();
    void workOffLatePresses();

    void handle(const RawKey& key);
    void handle(const StateChange& change);
    void handle(const KeymapTouched&);
    void handle(const KeyboardGone& gone);
    void handle(const RepeatDelay& delay);
    void handle(const WindowHold& hold);

    bool takeRepeatPair(const RawKey& release);
    KeyOrigin originOf(const RawKey& press, bool own);
    std::optional<GrabbedPress> claim(const RawKey& press);
    bool comesAgain(const RawKey& press);
    void handleLate(const GrabbedPress& press);
    void deliverRepeatsBefore(const RawKey& key);
    void deliverRepeats(const std::vector<KeyRepeat>& repeats);
    void noteHotKey(HotKeyId id);
    void noteHotKeyRelease(const RawKey& release);
    bool isRepeat(const GrabbedPress& press) const;

    Streams m_streams;
    Rules m_rules;
    KeyInterpreter& m_interpreter;
    std::function<void()> m_keymapTouched;
    ServerTime m_lastTime = 0;
    /// When each key that was a hot key was released last; presses before are its repeats.
    std::map<std::uint8_t, ServerTime> m_hotKeyReleases;
};

}  // namespace x11
