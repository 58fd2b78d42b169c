// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeys.h"

/// One service of hot keys for two parts of a program that know nothing of each other: each has handlers, an
/// observer and ids of its own.
class HotKeyShares {
  public:
    /// From here on ids are those of the second share; those of the first are smaller.
    static constexpr HotKeyId firstOfSecond = 1000;

    /// Takes handlers and observer of the service, which outlives this.
    explicit HotKeyShares(HotKeys& hotKeys);
    ~HotKeyShares();
    HotKeyShares(const HotKeyShares&) = delete;
    HotKeyShares& operator=(const HotKeyShares&) = delete;

    HotKeys& first() { return m_first; }
    HotKeys& second() { return m_second; }

  private:
    class Share : public HotKeys {
      public:
        explicit Share(HotKeys& hotKeys) : m_hotKeys(hotKeys) {}

        void install(Handler pressed, Handler released) override;
        void observe(Observer observer) override;
        void request(const HotKeyRequest& request) override { m_hotKeys.request(request); }
        void requestAll(const std::vector<HotKeyRequest>& requests) override {
            m_hotKeys.requestAll(requests);
        }
        void withdraw(HotKeyId id) override { m_hotKeys.withdraw(id); }
        HotKeyState state(HotKeyId id) const override { return m_hotKeys.state(id); }
        bool needsConsent() const override { return m_hotKeys.needsConsent(); }
        void setConsent(bool given) override { m_hotKeys.setConsent(given); }
        std::uint32_t lastPressTime() const override { return m_hotKeys.lastPressTime(); }

        void press(HotKeyId id) const;
        void release(HotKeyId id) const;
        void tell(HotKeyId id, const HotKeyState& state) const;

      private:
        HotKeys& m_hotKeys;
        Handler m_pressed;
        Handler m_released;
        Observer m_observer;
    };

    const Share& of(HotKeyId id) const { return id < firstOfSecond ? m_first : m_second; }

    HotKeys& m_hotKeys;
    Share m_first{m_hotKeys};
    Share m_second{m_hotKeys};
};
