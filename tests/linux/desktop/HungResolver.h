// SPDX-License-Identifier: MIT
#pragma once

/// While one lives, the resolution of the name "hung.example" in this process does not come to an end.
class HungResolver {
  public:
    HungResolver();
    ~HungResolver();
    HungResolver(const HungResolver&) = delete;
    HungResolver& operator=(const HungResolver&) = delete;
};
