// SPDX-License-Identifier: MIT
//
// Whatever bytes come as strokes to be typed: they are read whole and within bounds, or not at all.
#include <cstdint>
#include <cstdlib>

#include "access/Strokes.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Not trusted to be in normal form, as on the bus; the bytes need the alignment of the type.
    g_autoptr(GBytes) bytes = g_bytes_new(data, size);
    g_autoptr(GVariant) value = g_variant_new_from_bytes(G_VARIANT_TYPE("a(qy)"), bytes, FALSE);
    g_variant_ref_sink(value);
    const auto strokes = keyaccess::strokesOf(value);
    if (!strokes) return 0;
    if (strokes->empty() || strokes->size() > keyaccess::mostStrokes) std::abort();
    keyaccess::DownKeys down;
    for (const keyaccess::Stroke& stroke : *strokes) {
        if (!keyaccess::isKeyOffered(stroke.code)) std::abort();
        if (down.mayFollow(stroke)) down.follow(stroke);
    }
    return 0;
}
