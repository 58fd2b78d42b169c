// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

/// In logical pixels, of which each is `scale` times `scale` of the screen's own.
struct LayerSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const LayerSize&, const LayerSize&) = default;
};

/// In logical pixels from the upper left corner, downwards.
struct LayerPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const LayerPoint&, const LayerPoint&) = default;
};

/// What a layer shows, for its content to fill.
struct LayerPicture {
    /// Rows from the top, without gaps; alpha in the highest byte of each pixel, then red, green and blue,
    /// multiplied by alpha. All transparent to begin with.
    std::span<std::uint32_t> pixels;
    // In the screen's own pixels.
    int width = 0;
    int height = 0;
    /// At least 1.
    int scale = 1;
};

/// A key that is pressed or released while the layer has the keyboard.
struct LayerKey {
    /// Which key of the keyboard it is: its symbol may be another when it is released.
    std::uint32_t keycode = 0;
    /// A symbol of the X keyboard extension (keysymdef.h): 0xff0d for Return.
    std::uint32_t symbol = 0;
    /// The character that the symbol stands for, whatever else is held; 0 if none.
    char32_t character = 0;
    /// What it types, UTF-8.
    std::string text = {};
    /// Masks of platform/Modifiers.h; no locks among them.
    std::uint32_t modifiers = 0;
    bool isPress = true;
    /// How long the key is held until it repeats, and then from one to the next; 0 where it does not repeat.
    int repeatDelay = 0;     // milliseconds
    int repeatInterval = 0;  // milliseconds
};

/// What the pointer does above the layer. A layer that it was pressed on gets its motions up to the release,
/// wherever it is.
struct LayerPointer {
    enum class Kind { motion, press, release, leave };

    Kind kind = Kind::motion;
    /// Within the layer.
    LayerPoint place;
};

/// What a layer shows and does. Called while the session's event sources are served, and in refresh().
class LayerContent {
  public:
    virtual ~LayerContent() = default;

    /// Not empty.
    virtual LayerSize layerSize() const = 0;
    /// Where its upper left corner goes on a screen of that size.
    virtual LayerPoint placeOn(LayerSize screen) const = 0;
    virtual void paint(const LayerPicture& picture) = 0;

    /// Whether the layer takes the keyboard and the pointer, both for as long as it is there; the same at all
    /// times. The others let all of it through to what lies below.
    virtual bool takesInput() const = 0;
    /// Whether the layer has the keyboard now. Those below are called only then, but for the pointer's.
    virtual void keyboardComesOrGoes(bool hasKeyboard) = 0;
    virtual void keyChanges(const LayerKey& key) = 0;
    /// The main button's presses and releases alone.
    virtual void pointerMoves(const LayerPointer& pointer) = 0;
};

/// A picture above all windows, also above those that fill the screen. It is there for as long as the object;
/// when it goes the keyboard goes back to who had it.
class Layer {
  public:
    virtual ~Layer() = default;

    /// The content has changed, or its size: it is painted anew, at most once a frame.
    virtual void refresh() = 0;
};

/// What a session has that shows things above all windows, where ordinary windows cannot lie there or would
/// take the keyboard. Where there is none, ordinary windows serve.
class Layers {
  public:
    virtual ~Layers() = default;

    virtual bool areOffered() const = 0;
    /// On the screen that the user is at, as far as the compositor knows it. The content outlives the layer.
    /// Null where layers are not offered.
    virtual std::unique_ptr<Layer> show(LayerContent& content) = 0;
};
