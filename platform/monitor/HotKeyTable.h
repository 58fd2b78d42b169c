// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/keymap/KeyboardState.h"
#include "platform/monitor/KeyGrabber.h"

/// Which hot key has which combination, what became of each request, and the grabs that follow from it.
class HotKeyTable {
  public:
    /// Both outlive this.
    HotKeyTable(KeyGrabber& grabs, const KeyboardState& keyboard)
        : m_grabs(grabs), m_keyboard(keyboard), m_lockedHolds(lockedHolds()) {}

    void observe(HotKeys::Observer observer) { m_observer = std::move(observer); }
    void request(const HotKeyRequest& request) { requestAll({request}); }
    void requestAll(const std::vector<HotKeyRequest>& requests);
    void withdraw(HotKeyId id);
    HotKeyState state(HotKeyId id) const;

    /// The hot key that is pressed with this key and these real modifiers, if any.
    std::optional<HotKeyId> find(std::uint8_t keycode, std::uint16_t modifiers) const;
    /// The one for which this was grabbed, whatever is pressed for it.
    std::optional<HotKeyId> ownerOf(const KeyGrab& grab) const;
    bool usesKeycode(std::uint8_t keycode) const;
    bool cancelsPlayback(HotKeyId id) const;
    bool startsPlayback(HotKeyId id) const;
    /// The real modifiers of all that cancel a playback.
    std::uint16_t modifiersOfStop() const;

    /// A desktop whose user decides has decided on what was grabbed, or otherwise than before.
    void answer(const KeyGrab& grab, const GrabAnswer& answer);

    /// Whether another program holds a combination that is wanted, and another try to get each of those.
    bool isKeptWaiting() const;
    void tryAgain();

    /// Who takes combinations has forgotten them all: asks for each anew, in the order of their ids, so that
    /// of two with one combination the first keeps it.
    void requestAgain();

    /// Moves the grabs whose key or modifiers, or symbols where those are taken, are others in the new
    /// keymap.
    void followKeymap();
    /// The same where Shift, Control, Alt or Super is locked now and was not, or the other way round: other
    /// locks do not matter for a combination, but these are part of it.
    void followLocks();

    /// See HotKeys.
    bool needsConsent() const { return m_grabs.needsConsent(); }
    void setConsent(bool given);

    /// Whether what follows gives anything free.
    bool canLift() const { return m_grabs.canLift(); }
    /// Gives the combination of these real modifiers free until restoreAll(); false, and nothing done, if it
    /// is none of ours or has been given free already.
    bool lift(std::uint8_t keycode, std::uint16_t modifiers);
    /// The same with all combinations of the key.
    bool liftAll(std::uint8_t keycode);
    /// Takes back what is lifted of that key, by the keymap that holds then.
    void restoreAll(std::uint8_t keycode);

  private:
    struct Row {
        HotKeyRequest request;
        std::optional<KeyGrab> grab;
        /// What is pressed for it, if that is known.
        std::optional<KeyGrab> keys;
        HotKeyState state;
        /// Refused since another row has the combination; it is tried again when one is given free.
        bool waits = false;
        /// Refused since another program has it; nobody tells when it is given free.
        bool isElsewhere = false;
        /// Given free for a while, though it is registered.
        bool isLifted = false;
    };

    void tryRow(Row& row) { tryRows({&row}); }
    /// All at once, as if one after the other.
    void tryRows(const std::vector<Row*>& rows);
    /// What it would be grabbed as; it is refused where that is known before.
    std::optional<KeyGrab> preparedGrab(Row& row);
    void conclude(Row& row, const std::optional<std::string>& failure);
    void freeRow(Row& row);
    bool liftRow(Row& row);
    void tryWaitingRows();
    void refuse(Row& row, const Error& why, std::optional<HotKeyId> holder = std::nullopt);
    void settle(Row& row, HotKeyState state);
    /// The grab of a request, or why there can be none.
    Result<KeyGrab> grabFor(const HotKeyRequest& request) const;
    /// Whether it is a character, which as a hot key would be lost to every program.
    bool isTyped(const HotKeyRequest& request) const;
    /// Those of Shift, Control, Alt and Super that are locked.
    xkb_mod_mask_t lockedHolds() const;
    /// The row that has it.
    std::optional<HotKeyId> holderOf(const KeyGrab& grab) const;
    std::string combinationText(const HotKeyRequest& request) const;

    KeyGrabber& m_grabs;
    const KeyboardState& m_keyboard;
    HotKeys::Observer m_observer;
    std::map<HotKeyId, Row> m_rows;
    xkb_mod_mask_t m_lockedHolds = 0;
    bool m_hasConsent = false;
};
