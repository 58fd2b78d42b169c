// SPDX-License-Identifier: MIT
// Not part of any program: the compiler must warn of each of the three.
#include "platform/Result.h"

Result<int> number();
Result<> nothing();
Result<int, int*> otherFailure();

void discardsThem() {
    number();
    nothing();
    otherFailure();
}
