// SPDX-License-Identifier: MIT
#include "access/AccessService.h"

#include <gio/gunixfdlist.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "access/Authority.h"
#include "access/Grant.h"

namespace keyaccess {

namespace {

constexpr const char* introspection =
    "<node><interface name='example.orlen.Keyrill.Access1'>"
    "<method name='OpenKeyboards'><arg name='mayAsk' type='b' direction='in'/>"
    "<arg name='keyboards' type='a(sh)' direction='out'/></method>"
    "<method name='Close'/>"
    "<method name='OpenTyping'><arg name='mayAsk' type='b' direction='in'/></method>"
    "<method name='Type'><arg name='strokes' type='a(qy)' direction='in'/></method>"
    "<method name='CloseTyping'/>"
    "</interface></node>";

constexpr std::size_t mostCallers = 16;

/// The two things that are asked of polkit, and what the log calls them.
struct Purpose {
    const char* action;
    const char* words;
};
constexpr Purpose reading{"example.orlen.Keyrill.capture", "read the keyboards"};
constexpr Purpose typing{"example.orlen.Keyrill.type", "type"};

void refuse(GDBusMethodInvocation* call, GDBusError code, const char* why) {
    g_dbus_method_invocation_return_error_literal(call, G_DBUS_ERROR, code, why);
}

void succeed(GDBusMethodInvocation* call) { g_dbus_method_invocation_return_value(call, nullptr); }

bool firstFlag(GVariant* parameters) {
    gboolean value = FALSE;
    g_variant_get(parameters, "(b)", &value);
    return value == TRUE;
}

}  // namespace

class AccessService::Parts {
  public:
    Parts(GDBusConnection* bus, InputDevices& devices, Rest rest);
    ~Parts();
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

  private:
    /// Whoever has something or waits for an answer.
    struct Caller {
        guint watch = 0;
        /// The call that waits, and what for.
        GDBusMethodInvocation* waiting = nullptr;
        const Purpose* purpose = nullptr;
        /// Known once logind has told.
        std::optional<Identity> who;
        std::unique_ptr<Grant> grant;
    };
    using Callers = std::map<std::string, Caller>;

    void handle(const std::string& name, std::string_view method, GVariant* parameters,
                GDBusMethodInvocation* call);
    void type(const std::string& name, GVariant* parameters, GDBusMethodInvocation* call);
    void close(const std::string& name, void (Grant::*part)(), GDBusMethodInvocation* call);
    void ask(const std::string& name, const Purpose& purpose, bool mayAsk, GDBusMethodInvocation* call);
    void askPolkit(const std::string& name, const Identity& who, bool mayAsk);
    void addTo(const std::string& name);
    void checkSession(const std::string& name, const Identity& who, std::function<void()> usable);
    void permit(const std::string& name, const Identity& who);
    void answerKeyboards(Caller& caller, GDBusMethodInvocation* call);
    void answerWithError(const std::string& name, GDBusError code, const char* why);
    void log(const Caller& caller, const char* verdict) const;
    /// The caller whose question is still open.
    Caller* waiting(const std::string& name);
    void leave(const std::string& name);
    void sessionEnded(const std::string& session);
    void forgetIfIdle(const std::string& name);
    void followRest();

    static void onCall(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                       const char* method, GVariant* parameters, GDBusMethodInvocation* call, gpointer self);
    static void onVanished(GDBusConnection* bus, const char* name, gpointer self);
    static gboolean onRest(gpointer self);

    GDBusConnection* m_bus;
    InputDevices& m_devices;
    Rest m_rest;
    Authority m_authority;
    LoginSessions m_sessions;
    Callers m_callers;
    guint m_object = 0;
    guint m_restTimer = 0;
    /// How often a session has ended or gone to the back.
    unsigned m_endings = 0;
};

AccessService::Parts::Parts(GDBusConnection* bus, InputDevices& devices, Rest rest)
    : m_bus(bus), m_devices(devices), m_rest(std::move(rest)), m_authority(bus), m_sessions(bus) {
    m_sessions.observe([this](const std::string& session) { sessionEnded(session); });
    static const GDBusInterfaceVTable table{onCall, nullptr, nullptr, {}};
    g_autoptr(GDBusNodeInfo) node = g_dbus_node_info_new_for_xml(introspection, nullptr);
    if (node == nullptr) std::abort();
    m_object = g_dbus_connection_register_object(bus, objectPath, node->interfaces[0], &table, this, nullptr,
                                                 nullptr);
    followRest();
}

AccessService::Parts::~Parts() {
    g_dbus_connection_unregister_object(m_bus, m_object);
    if (m_restTimer != 0) g_source_remove(m_restTimer);
    while (!m_callers.empty()) leave(m_callers.begin()->first);
    if (m_restTimer != 0) g_source_remove(m_restTimer);
}

void AccessService::Parts::onCall(GDBusConnection* /*bus*/, const char* sender, const char* /*path*/,
                                  const char* /*interface*/, const char* method, GVariant* parameters,
                                  GDBusMethodInvocation* call, gpointer self) {
    static_cast<Parts*>(self)->handle(sender, method, parameters, call);
}

void AccessService::Parts::handle(const std::string& name, std::string_view method, GVariant* parameters,
                                  GDBusMethodInvocation* call) {
    if (method == "OpenKeyboards") {
        ask(name, reading, firstFlag(parameters), call);
    } else if (method == "OpenTyping") {
        ask(name, typing, firstFlag(parameters), call);
    } else if (method == "Type") {
        type(name, parameters, call);
    } else if (method == "Close") {
        close(name, &Grant::closeKeyboards, call);
    } else {
        close(name, &Grant::closeTyping, call);
    }
}

void AccessService::Parts::type(const std::string& name, GVariant* parameters, GDBusMethodInvocation* call) {
    const auto caller = m_callers.find(name);
    const bool mayType = caller != m_callers.end() && caller->second.grant && caller->second.grant->mayType();
    if (!mayType) return refuse(call, G_DBUS_ERROR_ACCESS_DENIED, "No keyboard to type on is open.");
    g_autoptr(GVariant) value = g_variant_get_child_value(parameters, 0);
    const auto strokes = strokesOf(value);
    if (!strokes) return refuse(call, G_DBUS_ERROR_INVALID_ARGS, "These are no keys that may be typed.");
    if (!caller->second.grant->type(*strokes)) {
        return refuse(call, G_DBUS_ERROR_FAILED, "Not all of it could be typed.");
    }
    succeed(call);
}

void AccessService::Parts::close(const std::string& name, void (Grant::*part)(),
                                 GDBusMethodInvocation* call) {
    const auto caller = m_callers.find(name);
    if (caller != m_callers.end() && caller->second.grant) (*caller->second.grant.*part)();
    succeed(call);
    forgetIfIdle(name);
}

void AccessService::Parts::ask(const std::string& name, const Purpose& purpose, bool mayAsk,
                               GDBusMethodInvocation* call) {
    const bool isNew = !m_callers.contains(name);
    if (isNew && m_callers.size() >= mostCallers) {
        return refuse(call, G_DBUS_ERROR_LIMITS_EXCEEDED, "Too many programs ask.");
    }
    Caller& caller = m_callers[name];
    if (caller.waiting != nullptr) {
        return refuse(call, G_DBUS_ERROR_LIMITS_EXCEEDED, "An earlier question is not answered yet.");
    }
    caller.waiting = call;
    caller.purpose = &purpose;
    followRest();
    if (isNew) {
        caller.watch = g_bus_watch_name_on_connection(m_bus, name.c_str(), G_BUS_NAME_WATCHER_FLAGS_NONE,
                                                      nullptr, onVanished, this, nullptr);
    }
    const bool hasIt =
        caller.grant && (&purpose == &reading ? caller.grant->mayRead() : caller.grant->mayType());
    if (hasIt) return addTo(name);
    m_sessions.find(name, [this, name, mayAsk](const std::optional<Identity>& who) {
        if (!who)
            return answerWithError(name, G_DBUS_ERROR_ACCESS_DENIED, "The caller belongs to no session.");
        if (Caller* known = waiting(name)) known->who = who;
        // Nobody is asked on behalf of a session that would not be given anything.
        checkSession(name, *who, [this, name, who = *who, mayAsk] { askPolkit(name, who, mayAsk); });
    });
}

/// Who has something already gets more of it unless he has lost it meanwhile.
void AccessService::Parts::addTo(const std::string& name) {
    const Identity who = waiting(name)->grant->who();
    checkSession(name, who, [this, name, who] {
        const Caller& caller = *waiting(name);
        const bool hasIt = caller.purpose == &reading ? caller.grant->mayRead() : caller.grant->mayType();
        if (hasIt) return permit(name, who);
        answerWithError(name, G_DBUS_ERROR_ACCESS_DENIED, "The caller's session was not in front.");
    });
}

void AccessService::Parts::checkSession(const std::string& name, const Identity& who,
                                        std::function<void()> usable) {
    m_sessions.check(who, [this, name, who, endings = m_endings, usable = std::move(usable)](bool isUsable) {
        if (waiting(name) == nullptr) return;
        // The answer may be older than what has been told since.
        if (endings != m_endings) return checkSession(name, who, usable);
        if (isUsable) return usable();
        answerWithError(name, G_DBUS_ERROR_ACCESS_DENIED,
                        "The caller's session is not in front, or is locked.");
    });
}

void AccessService::Parts::askPolkit(const std::string& name, const Identity& who, bool mayAsk) {
    m_authority.check(name, waiting(name)->purpose->action, mayAsk, [this, name, who](bool isAuthorized) {
        if (waiting(name) == nullptr) return;
        if (!isAuthorized)
            return answerWithError(name, G_DBUS_ERROR_ACCESS_DENIED, "Permission was not given.");
        // The answer may have taken minutes, and polkit gives a remembered one to sessions in the back too.
        checkSession(name, who, [this, name, who] { permit(name, who); });
    });
}

void AccessService::Parts::permit(const std::string& name, const Identity& who) {
    Caller& caller = *waiting(name);
    if (!caller.grant) caller.grant = std::make_unique<Grant>(m_devices, who);
    log(caller, "may");
    GDBusMethodInvocation* call = std::exchange(caller.waiting, nullptr);
    if (caller.purpose == &reading) return answerKeyboards(caller, call);
    if (caller.grant->openTyping()) return succeed(call);
    refuse(call, G_DBUS_ERROR_FAILED, "No keyboard to type on can be made.");
    forgetIfIdle(name);
}

void AccessService::Parts::answerKeyboards(Caller& caller, GDBusMethodInvocation* call) {
    g_autoptr(GUnixFDList) descriptors = g_unix_fd_list_new();
    GVariantBuilder list;
    g_variant_builder_init(&list, G_VARIANT_TYPE("a(sh)"));
    for (const auto& [name, descriptor] : caller.grant->openKeyboards()) {
        const int index = g_unix_fd_list_append(descriptors, descriptor, nullptr);
        if (index >= 0) g_variant_builder_add(&list, "(sh)", name.c_str(), index);
    }
    g_dbus_method_invocation_return_value_with_unix_fd_list(call, g_variant_new("(a(sh))", &list),
                                                            descriptors);
}

void AccessService::Parts::answerWithError(const std::string& name, GDBusError code, const char* why) {
    Caller* caller = waiting(name);
    if (caller == nullptr) return;
    log(*caller, "may not");
    refuse(std::exchange(caller->waiting, nullptr), code, why);
    forgetIfIdle(name);
}

void AccessService::Parts::log(const Caller& caller, const char* verdict) const {
    const char* name = g_dbus_method_invocation_get_sender(caller.waiting);
    if (caller.who) {
        g_printerr("User %u, process %u (%s) %s %s.\n", caller.who->user, caller.who->process, name, verdict,
                   caller.purpose->words);
    } else {
        g_printerr("The caller %s %s %s.\n", name, verdict, caller.purpose->words);
    }
}

AccessService::Parts::Caller* AccessService::Parts::waiting(const std::string& name) {
    const auto caller = m_callers.find(name);
    return caller == m_callers.end() || caller->second.waiting == nullptr ? nullptr : &caller->second;
}

void AccessService::Parts::onVanished(GDBusConnection* /*bus*/, const char* name, gpointer self) {
    static_cast<Parts*>(self)->leave(name);
}

void AccessService::Parts::leave(const std::string& name) {
    const auto caller = m_callers.find(name);
    if (caller == m_callers.end()) return;
    if (caller->second.waiting != nullptr) {
        m_authority.cancel(name);
        refuse(caller->second.waiting, G_DBUS_ERROR_FAILED, "The caller has left.");
    }
    const guint watch = caller->second.watch;
    m_callers.erase(caller);
    g_bus_unwatch_name(watch);
    followRest();
}

void AccessService::Parts::sessionEnded(const std::string& session) {
    ++m_endings;
    std::vector<std::string> ended;
    for (auto& [name, caller] : m_callers) {
        if (!caller.grant || (!session.empty() && caller.grant->who().session != session)) continue;
        g_printerr("User %u, process %u (%s) has nothing any more: the session is not in front.\n",
                   caller.grant->who().user, caller.grant->who().process, name.c_str());
        caller.grant->closeKeyboards();
        caller.grant->closeTyping();
        ended.push_back(name);
    }
    for (const std::string& name : ended) forgetIfIdle(name);
}

void AccessService::Parts::forgetIfIdle(const std::string& name) {
    const auto caller = m_callers.find(name);
    if (caller == m_callers.end() || caller->second.waiting != nullptr) return;
    if (!caller->second.grant || caller->second.grant->isEmpty()) leave(name);
}

void AccessService::Parts::followRest() {
    if (m_restTimer != 0) g_source_remove(std::exchange(m_restTimer, 0U));
    if (!m_callers.empty()) return;
    m_restTimer = g_timeout_add_seconds(static_cast<guint>(m_rest.after.count()), onRest, this);
}

gboolean AccessService::Parts::onRest(gpointer self) {
    auto& parts = *static_cast<Parts*>(self);
    parts.m_restTimer = 0;
    parts.m_rest.ended();
    return G_SOURCE_REMOVE;
}

AccessService::AccessService(GDBusConnection* bus, InputDevices& devices, Rest rest)
    : m_parts(std::make_unique<Parts>(bus, devices, std::move(rest))) {}
AccessService::~AccessService() = default;

}  // namespace keyaccess
