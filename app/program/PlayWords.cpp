// SPDX-License-Identifier: MIT
#include "app/program/PlayWords.h"

Result<PlayWish> playWish(const std::optional<std::string>& times, const std::optional<std::string>& speed) {
    PlayWish wish;
    if (times && !(wish.times = playTimesFromText(*times))) {
        return Error{"\"" + *times + "\" is not how many times a macro can be played.",
                     "It is a whole number from 1 on, or until-stopped."};
    }
    if (speed && !(wish.speed = playSpeedFromText(*speed))) {
        return Error{"\"" + *speed + "\" is not how fast a macro can be played.",
                     "It is a number from 0.25 to 4, with a point: 1.5."};
    }
    return wish;
}

Error noName() { return {"The name of the macro is empty.", "keyrill --list prints those that there are."}; }
