# SPDX-License-Identifier: MIT
"""A compositor as another one: renamed_globals.py SOCKET NEW-SOCKET INTERFACE NEW-INTERFACE VERSION

Clients of NEW-SOCKET are passed on to the compositor at SOCKET, whose global INTERFACE they see as version 1 of
NEW-INTERFACE, and get VERSION of it when they bind that.
"""

import array
import os
import select
import socket
import struct
import sys
import threading

DISPLAY, GET_REGISTRY, BIND, GLOBAL = 1, 1, 0, 0


def unpacked_string(body, at):
    """The string there, and where it ends: its length with the zero, then its bytes up to a whole word."""
    (length,) = struct.unpack_from("=I", body, at)
    return body[at + 4 : at + 4 + length - 1].decode(), at + 4 + (length + 3) // 4 * 4


def packed_string(text):
    whole = text.encode() + b"\0"
    return struct.pack("=I", len(whole)) + whole + b"\0" * (-len(whole) % 4)


class Line:
    """One client and its line to the compositor."""

    def __init__(self, client, wishes):
        self.client = client
        self.compositor = socket.socket(socket.AF_UNIX)
        self.compositor.connect(wishes[0])
        self.real, self.shown, self.version = wishes[2], wishes[3], int(wishes[4])
        self.registries = set()
        self.rests = {self.client: b"", self.compositor: b""}
        self.files = {self.client: array.array("i"), self.compositor: array.array("i")}

    def requested(self, thing, opcode, body):
        if thing == DISPLAY and opcode == GET_REGISTRY:
            self.registries.add(struct.unpack_from("=I", body)[0])
        if thing in self.registries and opcode == BIND:
            interface, end = unpacked_string(body, 4)
            if interface == self.shown:
                return body[:4] + packed_string(self.real) + struct.pack("=I", self.version) + body[end + 4 :]
        return body

    def told(self, thing, opcode, body):
        if thing in self.registries and opcode == GLOBAL:
            interface, _ = unpacked_string(body, 4)
            if interface == self.real:
                return body[:4] + packed_string(self.shown) + struct.pack("=I", 1)
        return body

    def passes(self, source, target, change):
        """What has come, changed, with the descriptors that came with it; False at the end."""
        data, ancillary, _, _ = source.recvmsg(65536, socket.CMSG_SPACE(28 * 4))
        files = self.files[source]
        for _, _, content in ancillary:
            files.frombytes(content)
        if not data:
            return False
        rest = self.rests[source] + data
        passed = b""
        while len(rest) >= 8:
            thing, word = struct.unpack_from("=II", rest)
            size = word >> 16
            if len(rest) < size:
                break
            body = change(thing, word & 0xFFFF, rest[8:size])
            passed += struct.pack("=II", thing, (len(body) + 8) << 16 | word & 0xFFFF) + body
            rest = rest[size:]
        self.rests[source] = rest
        if passed:
            sent = target.sendmsg([passed], [(socket.SOL_SOCKET, socket.SCM_RIGHTS, files)] if files else [])
            target.sendall(passed[sent:])
            for file in files:
                os.close(file)
            del files[:]
        return True

    def run(self):
        ways = {
            self.client: (self.compositor, self.requested),
            self.compositor: (self.client, self.told),
        }
        try:
            while all(
                self.passes(source, *ways[source]) for source in select.select(list(ways), [], [])[0]
            ):
                pass
        except (BrokenPipeError, ConnectionResetError):
            pass
        self.client.close()
        self.compositor.close()


def main():
    wishes = sys.argv[1:]
    listener = socket.socket(socket.AF_UNIX)
    listener.bind(wishes[1] + ".part")
    os.chmod(wishes[1] + ".part", 0o777)
    listener.listen()
    # Who sees it can connect.
    os.rename(wishes[1] + ".part", wishes[1])
    while True:
        client, _ = listener.accept()
        threading.Thread(target=Line(client, wishes).run, daemon=True).start()


main()
