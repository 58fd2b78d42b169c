// SPDX-License-Identifier: MIT
#include "support/Certificates.h"

Certificates::Certificates() {
    make("authority", {"-subj", "/CN=Test authority"});
    make("server",
         {"-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost", "-addext",
          "basicConstraints=CA:FALSE", "-CA", path("authority.pem"), "-CAkey", path("authority.key")});
    make("stranger", {"-subj", "/CN=Another authority"});
}

void Certificates::make(const std::string& name, const std::vector<std::string>& more) const {
    std::vector<std::string> command = {"openssl",
                                        "req",
                                        "-x509",
                                        "-newkey",
                                        "ec",
                                        "-pkeyopt",
                                        "ec_paramgen_curve:prime256v1",
                                        "-nodes",
                                        "-days",
                                        "2",
                                        "-keyout",
                                        path(name + ".key"),
                                        "-out",
                                        path(name + ".pem")};
    command.insert(command.end(), more.begin(), more.end());
    outputOf(command);
}
