// SPDX-License-Identifier: MIT
#include "app/program/PlayWords.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PlayWords)
};

/// What the user has written, in quotation marks, is none of what the hint tells of.
Error refusal(const QString& message, const std::string& written, const QString& hint) {
    return {message.arg(QString::fromStdString(written)).toStdString(), hint.toStdString()};
}

}  // namespace

Result<PlayWish> playWish(const std::optional<std::string>& times, const std::optional<std::string>& speed) {
    PlayWish wish;
    if (times && !(wish.times = playTimesFromText(*times))) {
        return refusal(Words::tr("\"%1\" is not how many times a macro can be played."), *times,
                       Words::tr("It is a whole number from 1 on, or until-stopped."));
    }
    if (speed && !(wish.speed = playSpeedFromText(*speed))) {
        return refusal(Words::tr("\"%1\" is not how fast a macro can be played."), *speed,
                       Words::tr("It is a number from 0.25 to 4, with a point: 1.5."));
    }
    return wish;
}

Error noName() {
    return {Words::tr("The name of the macro is empty.").toStdString(),
            Words::tr("keyrill --list prints those that there are.").toStdString()};
}
