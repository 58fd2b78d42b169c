// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QKeyEvent>

#include "platform/Layers.h"

/// What the toolkit's widgets get for a key that came by way of a layer.
QKeyEvent keyEventOf(const LayerKey& key, bool isRepeat);
