// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A mail's draft as a URL, mailto:ADDRESS?subject=SUBJECT&body=BODY, from texts in UTF-8.
///
/// Unescaped stay A-Z a-z 0-9 -_.!~*'();/?:@&=+$, and so `&` in a subject ends the subject: mail programs
/// have always got these URLs so. All else is %XX of the character's Latin-1 byte; what Latin-1 lacks, and
/// bytes that are no UTF-8, stand as `?`.
std::string mailUrl(std::string_view address, std::string_view subject, std::string_view body);
