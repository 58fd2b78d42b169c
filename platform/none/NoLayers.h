// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Layers.h"

/// Where ordinary windows lie above all others.
class NoLayers final : public Layers {
  public:
    bool areOffered() const override { return false; }
    std::unique_ptr<Layer> show(LayerContent& /*content*/) override { return nullptr; }
};
