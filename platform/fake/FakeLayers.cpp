// SPDX-License-Identifier: MIT
#include "platform/fake/FakeLayers.h"

#include <string>

class FakeLayers::Shown : public Layer {
  public:
    explicit Shown(FakeLayers& layers) : m_layers(layers) {}
    ~Shown() override { m_layers.m_content = nullptr; }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    void refresh() override { ++m_layers.m_refreshes; }

  private:
    FakeLayers& m_layers;
};

std::unique_ptr<Layer> FakeLayers::show(LayerContent& content) {
    if (!m_areOffered) return nullptr;
    m_content = &content;
    return std::make_unique<Shown>(*this);
}

void FakeLayers::offer(LayerSize screen, int scale) {
    m_areOffered = true;
    m_screen = screen;
    m_scale = scale;
}

std::vector<std::uint32_t> FakeLayers::picture() const {
    const int width = m_content->layerSize().width * m_scale;
    const int height = m_content->layerSize().height * m_scale;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    m_content->paint({.pixels = pixels, .width = width, .height = height, .scale = m_scale});
    return pixels;
}

void FakeLayers::userTypes(std::uint32_t symbol, char character, std::uint32_t modifiers) {
    LayerKey key{.keycode = symbol, .symbol = symbol, .modifiers = modifiers};
    if (character != 0) {
        key.character = static_cast<unsigned char>(character);
        key.text = character;
    }
    m_content->keyChanges(key);
    key.isPress = false;
    m_content->keyChanges(key);
}
