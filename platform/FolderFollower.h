// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/FolderListing.h"

/// Tells what files of one kind lie in a folder of the user's, and what becomes of them.
///
/// - Files are known by the end of their names, in whatever case. Those whose names begin with a point are
/// not
///   told of, nor what lies in folders whose names do.
/// - Files and links are told of, pipes, sockets and devices are not. A link is taken by its own name:
/// what it
///   leads to is looked at by nobody before it is read. Links to folders are not entered, so that nothing is
///   found twice. Sub-folders deeper than sixteen are not entered either.
/// - Contents are not read.
/// - What comes within a moment is told at once, as one change from what was told before: a file that editors
///   write anew and rename is a changed one.
/// - The folder need not be there, may come and go, and may be a link itself. What of it cannot be read is
///   told as a fault, and its files as gone; they appear again when it can be.
/// - Nobody waits for the folder, however long it takes: it may lie on another machine.
class FolderFollower {
  public:
    using Observer = std::function<void(const FolderChanges& changes)>;

    virtual ~FolderFollower() = default;

    /// Follows a folder, an absolute path, in place of an earlier one. The observer is told on the main
    /// thread, never within this call: first of all that is there, even if that is nothing. `ending` is
    /// ASCII: ".keyrill".
    virtual void follow(const std::string& folder, const std::string& ending, Observer observer) = 0;
};
