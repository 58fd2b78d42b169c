// SPDX-License-Identifier: MIT
#include "platform/desktops/KdeLayouts.h"

#include "platform/Sentence.h"
#include "platform/desktops/portal/KdeLayoutNames.h"

namespace {

SessionBus::Method method(const char* member) {
    return {kdelayoutnames::service, kdelayoutnames::object, kdelayoutnames::face, member};
}

}  // namespace

std::uint32_t KdeLayouts::group() const {
    const auto answer = m_bus.ask(method("getLayout"), nullptr, "(u)");
    std::uint32_t group = 0;
    if (answer) g_variant_get(answer.value().get(), "(u)", &group);
    return group;
}

Result<void> KdeLayouts::setGroup(std::uint32_t group) {
    const auto answer = m_bus.ask(method("setLayout"), g_variant_new("(u)", group), "(b)");
    if (!answer) return answer.error();
    gboolean isDone = FALSE;
    g_variant_get(answer.value().get(), "(b)", &isDone);
    if (isDone == FALSE)
        return Error{sentence("Layouts", "The desktop has no keyboard layout of that number."), ""};
    return {};
}
