// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/HotKeys.h"
#include "platform/monitor/KeyGrab.h"

/// What a desktop has made of a wish that its user decides.
struct GrabAnswer {
    /// As that of KeyGrabber::grab(); empty if the wish is granted, though perhaps as another combination.
    std::optional<std::string> refusal;
    /// What is to be pressed, in the desktop's words; may be empty.
    std::string trigger = {};
    /// The combination that they mean; empty if that is not known.
    std::optional<KeyGrab> keys = {};

    friend bool operator==(const GrabAnswer&, const GrabAnswer&) = default;
};

/// Who can take combinations from all other programs.
class KeyGrabber {
  public:
    virtual ~KeyGrabber() = default;

    /// All variants or none. The error says why not, as the end of a sentence: "another program holds it".
    virtual std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) = 0;
    /// Several, none of which collides with another: why each was not taken, in their order.
    struct Wish {
        KeyGrab grab;
        const HotKeyRequest& request;
    };
    virtual std::vector<std::optional<std::string>> grabAll(const std::vector<Wish>& wishes) {
        std::vector<std::optional<std::string>> failures;
        failures.reserve(wishes.size());
        for (const Wish& wish : wishes) failures.push_back(grab(wish.grab, wish.request));
        return failures;
    }
    /// Gives back what grab() took; nothing happens for a combination that is not held.
    virtual void release(const KeyGrab& grab) = 0;
    /// Whether grab() is a wish that the desktop's user decides in its settings: the answer comes later
    /// (HotKeyTable::answer), and may change, and nothing can be given free for a while.
    virtual bool isDecidedByUser() const { return false; }
    /// Whether a combination can be given free for the length of a stroke.
    virtual bool canLift() const { return !isDecidedByUser(); }
    /// Why grab() takes none at all for now; empty if it may. What keeps it changes with consent alone.
    virtual std::optional<Error> obstacleToAll() const { return std::nullopt; }
    /// See HotKeys; without consent grab() takes nothing.
    virtual bool needsConsent() const { return false; }
    virtual void setConsent(bool /*given*/) {}
    /// Whether the end of a press may stay untold, where another key came between; nor are repeats told then.
    virtual bool losesReleases() const { return false; }
    /// Whether combinations are taken by what their keys type, so that another keymap makes others of them.
    virtual bool takesSymbols() const { return false; }
};
