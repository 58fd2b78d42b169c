// SPDX-License-Identifier: MIT
#pragma once

#include "access/InputDevices.h"
#include "platform/evdev/devices/InputFolders.h"

namespace keyaccess {

/// Those of the kernel: evdev and uinput.
class KernelDevices final : public InputDevices {
  public:
    std::vector<OpenKeyboard> openKeyboards(const std::set<std::string>& except) override;
    void revoke(int keyboard) override;
    bool isPresent(int keyboard) const override;
    Descriptor makeKeyboard() override;
    bool type(int keyboard, std::uint16_t code, bool press) override;

  private:
    const evdev::InputFolders m_folders{};
};

}  // namespace keyaccess
