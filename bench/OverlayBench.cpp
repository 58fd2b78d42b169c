// SPDX-License-Identifier: MIT
//
// What one more key costs the recorder overlay at the end of 50,000 keys, beside the end of 50: from the text
// to the picture, with all events in between handled.
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <string>

#include "Table.h"
#include "app/RecorderWindow.h"

namespace {

constexpr int measuredKeys = 4000;
constexpr int rounds = 5;

std::string textOf(int keys) {
    std::string text;
    for (int key = 0; key < keys; ++key) text += "A ";
    return text;
}

/// The lowest of a few rounds, since what the system took from a round is not the overlay's cost.
double microsecondsPerKey(RecorderWindow& overlay, int keys) {
    using Microseconds = std::chrono::duration<double, std::micro>;
    Microseconds lowest = Microseconds::max();
    for (int round = 0; round < rounds; ++round) {
        std::string text = textOf(keys);
        text.reserve(text.size() + 2 * measuredKeys);
        const auto begin = std::chrono::steady_clock::now();
        for (int key = 0; key < measuredKeys; ++key) {
            text += "A ";
            overlay.setMacroString(text);
            QCoreApplication::processEvents();
        }
        lowest = std::min<Microseconds>(lowest, std::chrono::steady_clock::now() - begin);
    }
    return lowest.count() / measuredKeys;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    RecorderWindow overlay;
    overlay.show();
    QCoreApplication::processEvents();
    const double after50 = microsecondsPerKey(overlay, 50);
    const double after50000 = microsecondsPerKey(overlay, 50'000);
    printRow({"overlay, one key after 50,000", after50000, "after 50", after50, "us", "ratio <= 1.2"});
}
