// SPDX-License-Identifier: MIT
#include "platform/x11/press/KeyBinder.h"

#include <algorithm>

#include "platform/Sentence.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

/// A type that every XKB map has at this place: Shift selects its second level.
constexpr std::uint8_t twoLevelType = 1;
constexpr std::uint8_t firstUsableKeycode = 9;
/// What a program that does not read holds up the end of ours.
constexpr std::chrono::milliseconds longestOfExit{1000};

/// Nothing ends it early.
class PlainWait final : public RunWait {
  public:
    explicit PlainWait(Clock& clock) : m_clock(clock) {}
    Step<> waitUntil(Clock::Time deadline) override {
        m_clock.sleepFor(deadline - m_clock.now());
        return {};
    }

  private:
    Clock& m_clock;
};

std::uint32_t symbolOf(char32_t character) { return xkb_utf32_to_keysym(character); }

BoundKey recordOf(const SpareBinding& binding) {
    return {
        .keycode = binding.slot.keycode, .level = binding.slot.level, .symbol = symbolOf(binding.character)};
}

KeycodeSet keysIn(const std::vector<BoundKey>& keys) {
    KeycodeSet set;
    for (const BoundKey& key : keys) set.set(key.keycode);
    return set;
}

}  // namespace

KeyBinder::KeyBinder(InjectionConnection& connection, KeymapWatch& keymap, Receivers& receivers, Clock& clock,
                     std::chrono::milliseconds patience)
    : m_connection(connection),
      m_keymap(keymap),
      m_receivers(receivers),
      m_clock(clock),
      m_patience(patience),
      m_record(keymap.connection()) {}

KeyBinder::~KeyBinder() {
    if (m_slots.bindings().empty()) return;
    PlainWait wait(m_clock);
    [[maybe_unused]] const auto isRead = awaitReaders(wait, longestOfExit);
    takeBack();
}

KeyboardMaps KeyBinder::maps() const { return {m_keymap.connection(), m_keymap.slaves(), m_keymap.map()}; }

bool KeyBinder::areKeyboardsEqual() const { return maps().areEqual(); }

/// Finds the unused keys, and how many levels one can have.
void KeyBinder::survey() {
    const KeyboardMaps maps = this->maps();
    const auto& targets = maps.targets();
    const ModifierMasks& masks = m_keymap.keymap().masks();
    const bool canChoose = m_keymap.keymap().keys().canHold(masks.thirdLevel);
    const bool hasFour =
        canChoose && std::all_of(targets.begin(), targets.end(), [&](const KeyboardMaps::Target& target) {
            return fourLevelType(target.map, masks).has_value();
        });
    m_levels = hasFour ? 4 : 2;
    std::vector<std::uint8_t> spares;
    KeycodeSet set;
    const DeviceMap& map = m_keymap.map();
    for (unsigned keycode = std::max(firstUsableKeycode, map.firstKeycode); keycode <= map.lastKeycode;
         ++keycode) {
        const auto isUnused = [&](const KeyboardMaps::Target& target) {
            return target.map.keys[keycode].isUnused();
        };
        if (!map.keys[keycode].isUnused()) continue;
        if (!std::all_of(targets.begin(), targets.end(), isUnused)) continue;
        spares.push_back(static_cast<std::uint8_t>(keycode));
        set.set(keycode);
    }
    m_slots.reset(spares, m_levels);
    m_keymap.setOwnKeys(set);
}

std::size_t KeyBinder::capacity() {
    if (m_slots.capacity() == 0) survey();
    return m_slots.capacity();
}

std::optional<Stroke> KeyBinder::find(char32_t character) const {
    const auto slot = m_slots.find(character);
    if (!slot) return std::nullopt;
    const ModifierMasks& masks = m_keymap.keymap().masks();
    Stroke stroke{.keycode = slot->keycode};
    if ((slot->level & 1U) != 0) stroke.modifiers |= masks.shift;
    if ((slot->level & 2U) != 0) stroke.modifiers |= masks.thirdLevel;
    return stroke;
}

void KeyBinder::recheck() {
    const DeviceMap& map = m_keymap.map();
    for (const SpareBinding& binding : m_slots.bindings()) {
        const auto& symbols = map.keys[binding.slot.keycode].symbols;
        const std::size_t level = binding.slot.level;
        if (level < symbols.size() && symbols[level] == symbolOf(binding.character)) continue;
        // Another keymap: what of ours is left in it is no longer known to be ours.
        m_slots.reset({}, 0);
        m_keymap.setOwnKeys({});
        return;
    }
    if (m_slots.bindings().empty()) m_slots.reset({}, 0);
}

SpareSlots::Plan KeyBinder::plan(const std::vector<char32_t>& wanted) {
    if (capacity() == 0) return {};
    return m_slots.plan(wanted);
}

void KeyBinder::noteReader() {
    if (!m_slots.bindings().empty()) m_receivers.note();
}

Step<bool> KeyBinder::awaitReaders(const SpareSlots::Plan& plan, RunWait& wait) {
    if (!plan.notBefore) return true;
    if (const auto waited = wait.waitUntil(*plan.notBefore); !waited) return waited.error();
    auto isRead = m_receivers.await(wait, m_patience);
    m_hasGivenUp = isRead && !isRead.value();
    return isRead;
}

Step<bool> KeyBinder::awaitReaders(RunWait& wait) {
    return awaitReaders(wait, m_hasGivenUp ? longestOfExit : m_patience);
}

Step<bool> KeyBinder::awaitReaders(RunWait& wait, std::chrono::milliseconds longest) {
    const auto rested = m_slots.restUntil();
    if (!rested) return true;
    if (const auto waited = wait.waitUntil(*rested); !waited) return waited.error();
    return m_receivers.await(wait, longest);
}

Result<void> KeyBinder::bind(const SpareSlots::Plan& plan) {
    if (plan.bindings.empty()) return {};
    std::vector<BoundKey> record = m_record.read();
    for (const SpareBinding& binding : plan.bindings) record.push_back(recordOf(binding));
    m_record.own();
    m_record.write(record);
    KeyboardMaps maps = this->maps();
    KeycodeSet changed;
    for (const SpareBinding& binding : plan.bindings) {
        changed.set(binding.slot.keycode);
        for (KeyboardMaps::Target& target : maps.targets()) put(target.map, binding);
    }
    if (!maps.write(m_connection.get(), changed)) {
        return Error{sentence("Keys", "The X server refuses to put characters on unused keys."),
                     sentence("Keys", "Use characters of the keyboard layout, or set another layout.")};
    }
    m_slots.apply(plan);
    const auto refreshed = m_keymap.refresh(true);
    if (!refreshed) return refreshed.error();
    // The keymap may have been set anew just then. That of keyboards which differ is known when one speaks.
    if (!maps.areEqual()) return {};
    recheck();
    return {};
}

void KeyBinder::put(DeviceMap& map, const SpareBinding& binding) const {
    KeySymbols& key = map.keys[binding.slot.keycode];
    if (key.symbols.size() != m_levels) {
        const auto four = fourLevelType(map, m_keymap.keymap().masks());
        const std::uint8_t type = m_levels == 4 ? four.value_or(twoLevelType) : twoLevelType;
        key = KeySymbols{.types = {type, type, type, type}, .groupInfo = 1, .width = m_levels, .symbols = {}};
        key.symbols.assign(m_levels, XKB_KEY_NoSymbol);
    }
    key.symbols[binding.slot.level] = symbolOf(binding.character);
}

void KeyBinder::clearLeftovers() {
    const auto record = m_record.read();
    if (record.empty() || m_record.hasOwner()) return;
    if (const auto read = m_keymap.refresh(true); !read) return;
    KeyboardMaps maps = this->maps();
    maps.write(m_connection.get(), maps.empty(record));
    m_record.write({});
    [[maybe_unused]] const auto seen = m_keymap.refresh(true);
}

/// As above, but what is recorded by other living processes stays.
void KeyBinder::takeBack() {
    if (const auto refreshed = m_keymap.refresh(true); !refreshed) return;
    std::vector<BoundKey> own;
    for (const SpareBinding& binding : m_slots.bindings()) own.push_back(recordOf(binding));
    const KeycodeSet ownKeys = keysIn(own);
    KeyboardMaps maps = this->maps();
    maps.write(m_connection.get(), maps.empty(own));
    auto record = m_record.read();
    record.erase(std::remove_if(record.begin(), record.end(),
                                [&](const BoundKey& key) { return ownKeys[key.keycode]; }),
                 record.end());
    m_record.write(record);
}

}  // namespace x11
