// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>

/// A client of a message bus, for as long as the object is there.
class BusClient {
  public:
    struct Unref {
        void operator()(GDBusConnection* bus) const { g_object_unref(bus); }
        void operator()(GVariant* value) const { g_variant_unref(value); }
    };
    using Value = std::unique_ptr<GVariant, Unref>;
    struct Method {
        const char* name;
        const char* object;
        const char* interface;
        const char* member;
    };

    /// One that is not there fails the test by an exception.
    explicit BusClient(const std::string& address);

    /// The answer, of that type. An error fails the test by an exception.
    Value call(const Method& method, GVariant* parameters, const char* type) const;
    /// The same with an open file of the caller's: handle 0 among the parameters.
    Value callWithFile(const Method& method, GVariant* parameters, int file, const char* type) const;

  private:
    std::unique_ptr<GDBusConnection, Unref> m_bus;
};
