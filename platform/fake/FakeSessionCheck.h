// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "platform/SessionCheck.h"
#include "platform/fake/Journal.h"

/// A session in which all is well until a test says otherwise.
class FakeSessionCheck : public SessionCheck {
  public:
    explicit FakeSessionCheck(Journal& journal) : m_journal(journal) {}

    Result<> version() const override {
        m_journal.note("checkVersion");
        return resultOf(m_versionError);
    }
    Result<> access() const override {
        m_journal.note("checkAccess");
        return resultOf(m_accessError);
    }
    SessionCapabilities capabilities() const override { return m_capabilities; }
    SessionDetails details() const override { return {.display = ":0"}; }

    /// From now on.
    void failVersion(Error error) { m_versionError = std::move(error); }
    void failAccess(Error error) { m_accessError = std::move(error); }
    void hideSomeWindows() {
        m_capabilities.recording = {Extent::partly, Means::xInput, Lack::nativeWindows};
    }

  private:
    static constexpr SessionCapabilities allFully() {
        const auto fully = [](Means means) { return CapabilityState{Extent::fully, means, Lack::nothing}; };
        return {.recording = fully(Means::xInput),
                .hotKeys = fully(Means::xGrab),
                .pressing = fully(Means::xTest),
                .text = fully(Means::xTest),
                .clipboard = fully(Means::xSelection),
                .overlay = fully(Means::xWindow),
                .windows = fully(Means::windowManager),
                .tray = fully(Means::dockingTray)};
    }
    static Result<> resultOf(const std::optional<Error>& error) {
        return error ? Result<>(*error) : Result<>();
    }

    Journal& m_journal;
    std::optional<Error> m_versionError;
    std::optional<Error> m_accessError;
    SessionCapabilities m_capabilities = allFully();
};
