// SPDX-License-Identifier: MIT
#include "platform/evdev/EventReader.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cinttypes>
#include <cstring>
#include <fstream>
#include <type_traits>

#include "evdev/FakeInput.h"
#include "support/Keys.h"

namespace {

constexpr std::uint16_t evdevA = 30;
constexpr std::uint16_t evdevS = 31;

class EventReaderTest : public testing::Test {
  protected:
    std::unique_ptr<evdev::EventReader> open() {
        const std::string file = m_input.folders().devices + "/event0";
        evdev::OpenedDevice device{Descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)),
                                   "event0"};
        return std::make_unique<evdev::EventReader>(std::move(device), m_calls);
    }
    void send(std::uint16_t code, std::int32_t value, std::int64_t microseconds) {
        m_device->key(code, value, Clock::Time(std::chrono::microseconds(microseconds)));
    }
    void lose(std::int64_t microseconds) {
        m_device->lost(Clock::Time(std::chrono::microseconds(microseconds)));
    }

    FakeInput m_input;
    FakeCalls m_calls;
    std::unique_ptr<FakeInput::Device> m_device = m_input.plug(0);
    WipedQueue<evdev::DeviceKey> m_keys;
};

using Keys = WipedQueue<evdev::DeviceKey>;

TEST_F(EventReaderTest, readsPressesAndReleasesWithTheirTimes) {
    const auto reader = open();
    send(evdevA, 1, 5'000'001);
    send(evdevA, 0, 5'080'002);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{5'000'001, xkey::a, true}, {5'080'002, xkey::a, false}}));
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys.size(), 2U);
}

TEST_F(EventReaderTest, leavesOutRepeatsOtherKindsAndKeysThatNoKeymapHas) {
    const auto reader = open();
    send(evdevA, 1, 1);
    send(evdevA, 2, 2);
    send(BTN_LEFT, 1, 3);
    send(248, 1, 4);
    input_event motion{};
    motion.type = EV_REL;
    motion.code = REL_X;
    motion.value = 1;
    m_device->send(motion);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{1, xkey::a, true}}));
}

TEST_F(EventReaderTest, aPressOfAKeyThatWasDownAtTheBeginningIsNone) {
    m_calls.of(*m_device).down.set(xkey::a);
    const auto reader = open();
    EXPECT_TRUE(reader->down()[xkey::a]);
    send(evdevA, 1, 1);
    send(evdevA, 0, 2);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{2, xkey::a, false}}));
}

TEST_F(EventReaderTest, afterALossTheKernelTellsWhatIsDown) {
    const auto reader = open();
    send(evdevA, 1, 1);
    EXPECT_TRUE(reader->read(m_keys));
    m_keys.clear();
    // A's release and S's press are lost, and what stands behind the loss is older than the kernel's answer.
    m_calls.of(*m_device).down.reset().set(xkey::s);
    lose(7);
    send(evdevA, 0, 8);
    send(evdevS, 1, 9);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{9, xkey::a, false}, {9, xkey::s, true}}));
    m_keys.clear();
    send(evdevS, 0, 20);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{20, xkey::s, false}}));
}

TEST_F(EventReaderTest, whatCameBeforeALossIsKept) {
    const auto reader = open();
    send(evdevA, 1, 1);
    m_calls.of(*m_device).down.set(xkey::a);
    lose(7);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{1, xkey::a, true}}));
}

TEST_F(EventReaderTest, aKeyboardThatIsGoneIsToldAfterItsLastKeys) {
    const auto reader = open();
    send(evdevA, 1, 1);
    m_device.reset();
    EXPECT_FALSE(reader->read(m_keys));
    EXPECT_EQ(m_keys, (Keys{{1, xkey::a, true}}));
}

// A sanitizer has memory of its own that nobody may read.
#ifndef __SANITIZE_ADDRESS__
/// As wide as the kernel's times for this process.
using Word = std::make_unsigned_t<decltype(input_event::input_event_sec)>;

/// How often two words stand side by side in the memory that this process can write.
int occurrences(Word first, Word second) {
    std::ifstream maps("/proc/self/maps");
    int count = 0;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char rights[5] = {};
        if (std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR " %4s", &begin, &end, rights) != 3) continue;
        if (std::strncmp(rights, "rw", 2) != 0 || line.find("[v") != std::string::npos) continue;
        // NOLINTBEGIN(performance-no-int-to-ptr): addresses that the kernel has written as numbers.
        for (const auto* word = reinterpret_cast<const volatile Word*>(begin);
             word + 1 < reinterpret_cast<const volatile Word*>(end); ++word) {
            // NOLINTEND(performance-no-int-to-ptr)
            if (word[0] == first && word[1] == second) ++count;
        }
    }
    return count;
}

TEST_F(EventReaderTest, nothingOfWhatWasReadStaysInMemory) {
    constexpr Word second = 0x5EC0'FFEE;
    constexpr Word microsecond = 0x7'0B1A;
    const auto reader = open();
    input_event event{};
    for (int stroke = 0; stroke < 20; ++stroke) {
        event.input_event_sec = second;
        event.input_event_usec = microsecond;
        event.type = EV_KEY;
        event.code = evdevA;
        event.value = stroke % 2 == 0 ? 1 : 0;
        m_device->send(event);
    }
    EXPECT_GE(occurrences(second, microsecond), 1);
    wipe(&event, sizeof event);
    EXPECT_EQ(occurrences(second, microsecond), 0);
    EXPECT_TRUE(reader->read(m_keys));
    EXPECT_EQ(m_keys.size(), 20U);
    EXPECT_EQ(occurrences(second, microsecond), 0);
}
#endif

}  // namespace
