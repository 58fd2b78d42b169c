// SPDX-License-Identifier: MIT
//
// What the end of 50,000 keys costs the recorder overlay beside the end of 50: one more key, with all events
// handled, and one picture, which comes at most once a frame.
#include <QApplication>
#include <QPixmap>
#include <algorithm>
#include <chrono>
#include <string>

#include "Table.h"
#include "app/overlay/RecorderWindow.h"

namespace {

constexpr int measuredKeys = 4000;
constexpr int measuredPictures = 100;
constexpr int rounds = 50;

using Microseconds = std::chrono::duration<double, std::micro>;

std::string textOf(int keys) {
    std::string text;
    for (int key = 0; key < keys; ++key) text += "A ";
    return text;
}

/// Of one more key.
Microseconds keyCost(RecorderWindow& overlay, int keys) {
    std::string text = textOf(keys);
    text.reserve(text.size() + 2 * measuredKeys);
    const auto begin = std::chrono::steady_clock::now();
    for (int key = 0; key < measuredKeys; ++key) {
        text += "A ";
        overlay.setMacroString(text);
        QCoreApplication::processEvents();
    }
    return Microseconds(std::chrono::steady_clock::now() - begin) / measuredKeys;
}

Microseconds pictureCost(RecorderWindow& overlay, int keys) {
    overlay.setMacroString(textOf(keys));
    QPixmap picture(overlay.size());
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < measuredPictures; ++i) overlay.render(&picture);
    return Microseconds(std::chrono::steady_clock::now() - begin) / measuredPictures;
}

/// The lowest of a few rounds, in turn, since what the system took from a round is not the overlay's cost.
template <typename Cost>
void compare(const std::string& what, RecorderWindow& overlay, Cost cost) {
    Microseconds after50 = Microseconds::max();
    Microseconds after50000 = Microseconds::max();
    for (int round = 0; round < rounds; ++round) {
        after50 = std::min(after50, cost(overlay, 50));
        after50000 = std::min(after50000, cost(overlay, 50'000));
    }
    printRow({"overlay, one " + what + " after 50,000 keys", after50000.count(), "after 50", after50.count(),
              "us", "ratio <= 1.2"});
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    RecorderWindow overlay;
    overlay.show();
    QCoreApplication::processEvents();
    compare("key", overlay, keyCost);
    compare("picture", overlay, pictureCost);
}
