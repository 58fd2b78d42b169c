// SPDX-License-Identifier: MIT
#pragma once

/// Something that hears of the world through a file descriptor, as a part of any event loop.
class EventSource {
  public:
    virtual ~EventSource() = default;

    /// Readable when dispatch() has something to do; the same for the object's life.
    virtual int fileDescriptor() const = 0;

    /// Handles what has come. Never waits.
    virtual void dispatch() = 0;
};
