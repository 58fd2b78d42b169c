// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include "platform/Descriptor.h"
#include "platform/linux/BusLoop.h"
#include "platform/linux/GLibPointers.h"

using GVariantPointer = std::unique_ptr<GVariant, FreeBy<g_variant_unref>>;
using GMainContextPointer = std::unique_ptr<GMainContext, FreeBy<g_main_context_unref>>;

template <typename Object>
using GObjectPointer = std::unique_ptr<Object, FreeBy<g_object_unref>>;

/// The loop's own sources, apart from those of the process.
class BusLoop::Context {
  public:
    Context();

    GMainContext* get() const { return m_context.get(); }
    /// Readable when a bus has something to tell, or a timer of the context has run down.
    int fileDescriptor() const { return m_files.number(); }

    /// When the next timer of the context runs down, in milliseconds from now; below zero for none.
    void setTimer(int milliseconds);

    /// While one lives, what is begun in this thread is answered in the loop.
    class Scope {
      public:
        explicit Scope(const BusLoop& loop) : m_context(loop.context().get()) {
            g_main_context_push_thread_default(m_context);
        }
        ~Scope() { g_main_context_pop_thread_default(m_context); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        GMainContext* m_context;
    };

  private:
    GMainContextPointer m_context;
    Descriptor m_timer;
    Descriptor m_files;
    bool m_isTimerSet = false;
};
