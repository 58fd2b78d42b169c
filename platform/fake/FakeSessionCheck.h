// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "platform/SessionCheck.h"

/// A session in which all is well until a test says otherwise.
class FakeSessionCheck : public SessionCheck {
  public:
    Result<> version() const override { return resultOf(m_versionError); }
    Result<> access() const override { return resultOf(m_accessError); }
    bool seesOnlySomeWindows() const override { return m_seesOnlySomeWindows; }

    /// From now on.
    void failVersion(Error error) { m_versionError = std::move(error); }
    void failAccess(Error error) { m_accessError = std::move(error); }
    void hideSomeWindows() { m_seesOnlySomeWindows = true; }

  private:
    static Result<> resultOf(const std::optional<Error>& error) {
        return error ? Result<>(*error) : Result<>();
    }

    std::optional<Error> m_versionError;
    std::optional<Error> m_accessError;
    bool m_seesOnlySomeWindows = false;
};
