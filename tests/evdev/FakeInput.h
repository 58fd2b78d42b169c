// SPDX-License-Identifier: MIT
#pragma once

#include <linux/input.h>
#include <sys/types.h>

#include <chrono>
#include <map>
#include <memory>
#include <string>

#include "platform/Clock.h"
#include "platform/Descriptor.h"
#include "platform/evdev/devices/DeviceCalls.h"
#include "platform/evdev/devices/InputFolders.h"
#include "support/Child.h"

/// Keys of a PC keyboard, of a mouse and of a keypad, as sysfs shows them to processes of 64 bits.
namespace sysfskeys {
inline const char* const keyboard = "402000000 3803078f800d001 feffffdfffefffff fffffffffffffffe";
inline const char* const mouse = "1f0000 0 0 0 0";
inline const char* const keypad = "10007bb80 0";
}  // namespace sysfskeys

/// Folders as the kernel shows input devices in, whose device files are pipes.
class FakeInput {
  public:
    FakeInput();

    evdev::InputFolders folders() const { return {m_folder.file("dev"), m_folder.file("sys")}; }

    /// A device, which is there as long as the object, with its place and keys as sysfs shows them.
    class Device {
      public:
        Device(const evdev::InputFolders& folders, int number, const std::string& keys,
               const std::string& place);
        ~Device();
        Device(const Device&) = delete;
        Device& operator=(const Device&) = delete;

        /// As the kernel would have it, with its time.
        void send(const input_event& event) const;
        void key(std::uint16_t evdevCode, std::int32_t value, Clock::Time time) const;
        void lost(Clock::Time time) const;
        /// The pipe's end alone goes: the device is there and may not be read any more.
        void revoke() { m_writer.reset(); }
        ino_t inode() const;

      private:
        std::string m_class;
        std::string m_file;
        Descriptor m_writer;
    };

    std::unique_ptr<Device> plug(int number, const std::string& keys = sysfskeys::keyboard,
                                 const std::string& place = "usb-1/input0") const;

  private:
    TemporaryFolder m_folder;
};

/// What the kernel answers of those devices.
class FakeCalls final : public evdev::DeviceCalls {
  public:
    struct Answers {
        KeycodeSet down;
        evdev::LockLights lights;
    };
    Answers& of(const FakeInput::Device& device) { return m_answers[device.inode()]; }

    void useSteadyClock(int /*device*/) const override {}
    KeycodeSet keysDown(int device) const override { return answersOf(device).down; }
    evdev::LockLights lights(int device) const override { return answersOf(device).lights; }
    bool revoke(int /*device*/) const override { return true; }

  private:
    Answers answersOf(int device) const;

    std::map<ino_t, Answers> m_answers;
};
