// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Layers.h"

/// Layers of a screen in memory, once they are offered; one at a time.
class FakeLayers : public Layers {
  public:
    bool areOffered() const override { return m_areOffered; }
    std::unique_ptr<Layer> show(LayerContent& content) override;

    /// From now on, on a screen of that size with `scale` times `scale` pixels for each.
    void offer(LayerSize screen, int scale = 1);

    /// Whether a layer is shown.
    bool isShown() const { return m_content != nullptr; }
    /// The content of the layer that is shown.
    const LayerContent& content() const { return *m_content; }
    LayerPoint place() const { return m_content->placeOn(m_screen); }
    /// What is to be seen of it, row by row.
    std::vector<std::uint32_t> picture() const;
    /// How often it was said that the picture is another.
    int refreshes() const { return m_refreshes; }

    void giveKeyboard() { m_content->keyboardComesOrGoes(true); }
    void takeKeyboard() { m_content->keyboardComesOrGoes(false); }
    /// Presses and releases a key that types a character of ASCII or nothing (0), and has that symbol.
    void userTypes(std::uint32_t symbol, char character, std::uint32_t modifiers = 0);
    void keyChanges(const LayerKey& key) { m_content->keyChanges(key); }
    void userPoints(LayerPointer::Kind kind, LayerPoint place) { m_content->pointerMoves({kind, place}); }

  private:
    class Shown;

    bool m_areOffered = false;
    LayerSize m_screen;
    int m_scale = 1;
    LayerContent* m_content = nullptr;
    int m_refreshes = 0;
};
