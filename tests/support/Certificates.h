// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "support/Child.h"

/// "authority.pem", an authority's certificate; "server.pem" with "server.key", by which it vouches for
/// "localhost"; "stranger.pem", the certificate of another authority.
class Certificates {
  public:
    Certificates();
    std::string path(const std::string& name) const { return m_folder.file(name); }

  private:
    void make(const std::string& name, const std::vector<std::string>& more) const;

    TemporaryFolder m_folder;
};
