// SPDX-License-Identifier: MIT
#include "access/Authority.h"

#include "access/BusCall.h"

namespace keyaccess {

namespace {

Method authorityMethod(const char* member, const char* answerType) {
    return {"org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority",
            "org.freedesktop.PolicyKit1.Authority", member, answerType};
}

}  // namespace

void Authority::check(const std::string& caller, const char* action, bool mayAsk,
                      std::function<void(bool)> answered) const {
    constexpr guint32 allowUserInteraction = 1;
    GVariantBuilder subject;
    g_variant_builder_init(&subject, G_VARIANT_TYPE("a{sv}"));
    g_variant_builder_add(&subject, "{sv}", "name", g_variant_new_string(caller.c_str()));
    GVariantBuilder details;
    g_variant_builder_init(&details, G_VARIANT_TYPE("a{ss}"));
    // The caller's name serves as the question's own: he has one at a time.
    GVariant* parameters = g_variant_new("((sa{sv})sa{ss}us)", "system-bus-name", &subject, action, &details,
                                         mayAsk ? allowUserInteraction : 0U, caller.c_str());
    callMethod(m_bus, authorityMethod("CheckAuthorization", "((bba{ss}))"), parameters,
               [answered = std::move(answered)](GVariant* answer) {
                   gboolean isAuthorized = FALSE;
                   if (answer != nullptr)
                       g_variant_get(answer, "((bba{ss}))", &isAuthorized, nullptr, nullptr);
                   answered(isAuthorized == TRUE);
               });
}

void Authority::cancel(const std::string& caller) const {
    callMethod(m_bus, authorityMethod("CancelCheckAuthorization", "()"), g_variant_new("(s)", caller.c_str()),
               [](GVariant*) {});
}

}  // namespace keyaccess
