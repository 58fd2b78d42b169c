// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/values/Value.h"

namespace script {

/// A property of a value: of a record its own, `length`, `class`, `rest`, `year` and the like. Fails with
/// -1728 "Can’t get NAME of VALUE."
Fallible<Value> propertyOf(const Value& container, const Name& name);

/// Fails with -10006 "Can’t set NAME of CONTAINER to VALUE."
Fallible<> setProperty(const Value& container, const Name& name, const Value& value);

}  // namespace script
