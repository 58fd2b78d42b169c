// SPDX-License-Identifier: MIT
#include "core/KeyToolkit.h"

#include <gtest/gtest.h>

#include <ostream>

static std::ostream& operator<<(std::ostream& stream, const Arc& arc) {
    return stream << "arc at " << arc.centreX << "," << arc.centreY << " radius " << arc.radius << " from "
                  << arc.startAngle << " to " << arc.endAngle;
}

namespace {

using Arcs = std::array<Arc, 4>;

TEST(KeyToolkitTest, easesFromNothingToAll) {
    EXPECT_DOUBLE_EQ(easeInOut(0), 0);
    EXPECT_DOUBLE_EQ(easeInOut(0.5), 0.5);
    EXPECT_DOUBLE_EQ(easeInOut(1), 1);
    EXPECT_NEAR(easeInOut(0.25), 0.14644660940672624, 1e-15);
}

TEST(KeyToolkitTest, roundsCornersFromLowerLeftCounterClockwise) {
    const Arcs expected = {
        {{3, 4, 2, 180, 270}, {9, 4, 2, 270, 360}, {9, 20, 2, 0, 90}, {3, 20, 2, 90, 180}}};
    EXPECT_EQ(bezierPathWithSRCRoundRectInRect({1, 2, 10, 20}, 2).arcs, expected);
}

TEST(KeyToolkitTest, cutsTheRadiusToHalfTheShorterSide) {
    const Arcs expected = {{{2, 2, 2, 180, 270}, {8, 2, 2, 270, 360}, {8, 2, 2, 0, 90}, {2, 2, 2, 90, 180}}};
    EXPECT_EQ(bezierPathWithSRCRoundRectInRect({0, 0, 10, 4}, 5).arcs, expected);
    EXPECT_EQ(bezierPathWithSRCRoundRectInRect({0, 0, 4, 10}, 5).arcs[0].radius, 2);
}

DetailedError completeError() {
    return {{{"NSLocalizedDescription", "The disk is full."},
             {"NSLocalizedFailureReasonErrorKey", "No space is left."},
             {"NSLocalizedRecoverySuggestionErrorKey", "Delete something."},
             {"NSLocalizedRecoveryOptionsKey", std::vector<std::string>{"Give Up", "Wait"}}}};
}

TEST(KeyToolkitTest, readsWhatAnErrorSays) {
    const DetailedError error = completeError();
    EXPECT_EQ(localizedDescription(error), "The disk is full.");
    EXPECT_EQ(localizedFailureReason(error), "No space is left.");
    EXPECT_EQ(localizedRecoverySuggestion(error), "Delete something.");
    EXPECT_EQ(localizedRecoveryOptions(error), (std::vector<std::string>{"Give Up", "Wait"}));
}

TEST(KeyToolkitTest, readsNothingFromAnErrorThatSaysNothing) {
    const DetailedError error;
    EXPECT_EQ(localizedDescription(error), std::nullopt);
    EXPECT_EQ(localizedFailureReason(error), std::nullopt);
    EXPECT_EQ(localizedRecoverySuggestion(error), std::nullopt);
    EXPECT_EQ(localizedRecoveryOptions(error), std::nullopt);
}

TEST(KeyToolkitTest, makesAnAlertWithTheFirstOptionAsItsOnlyButton) {
    const AlertContent alert = alertWithNonRecoverableError(completeError());
    EXPECT_EQ(alert.messageText, "The disk is full.");
    EXPECT_EQ(alert.defaultButton, "Give Up");
    EXPECT_EQ(alert.alternateButton, std::nullopt);
    EXPECT_EQ(alert.otherButton, std::nullopt);
    EXPECT_EQ(alert.informativeText, "Delete something.");
}

TEST(KeyToolkitTest, makesAnAlertWithoutInformativeTextWhereNothingIsSuggested) {
    DetailedError error = completeError();
    error.userInfo.erase("NSLocalizedRecoverySuggestionErrorKey");
    EXPECT_EQ(alertWithNonRecoverableError(error).informativeText, "");
}

TEST(KeyToolkitTest, makesAnAlertWithoutAButtonTitleWhereThereAreNoOptions) {
    DetailedError error = completeError();
    error.userInfo["NSLocalizedRecoveryOptionsKey"] = std::vector<std::string>();
    EXPECT_EQ(alertWithNonRecoverableError(error).defaultButton, std::nullopt);
    error.userInfo.erase("NSLocalizedRecoveryOptionsKey");
    EXPECT_EQ(alertWithNonRecoverableError(error).defaultButton, std::nullopt);
}

}  // namespace
