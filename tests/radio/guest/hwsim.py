#!/usr/bin/python3
"""hwsim.py remove NUMBER | add: unplugs the simulated radio of that number, or plugs a new one in. Needs root."""

import os
import socket
import struct
import sys

GENERIC, CONTROLLER = 16, 16  # netlink's family, and the type of the messages about types
GET_FAMILY, FAMILY_ID, FAMILY_NAME = 3, 1, 2
# The driver's, by drivers/net/wireless/mac80211_hwsim.h, which is not installed.
NEW_RADIO, DELETE_RADIO, RADIO_NUMBER = 4, 5, 10
REQUEST, ACKNOWLEDGE = 1, 4


def attribute(number, content):
    return struct.pack("=HH", 4 + len(content), number) + content + bytes(-len(content) % 4)


def attributes(block):
    """Number: content."""
    found, at = {}, 0
    while at < len(block):
        length, number = struct.unpack_from("=HH", block, at)
        found[number] = block[at + 4:at + length]
        at += length + 3 & ~3
    return found


def ask(kind, command, content, flags=REQUEST):
    message = struct.pack("=IHHII4B", 20 + len(content), kind, flags, 0, 0, command, 1, 0, 0) + content
    with socket.socket(socket.AF_NETLINK, socket.SOCK_RAW, GENERIC) as kernel:
        kernel.send(message)
        return kernel.recv(1 << 16)


def main(command, *number):
    family = attributes(ask(CONTROLLER, GET_FAMILY, attribute(FAMILY_NAME, b"MAC80211_HWSIM\0"))[20:])[FAMILY_ID]
    content = attribute(RADIO_NUMBER, struct.pack("=I", int(*number))) if number else b""
    answer = ask(struct.unpack("=H", family)[0], NEW_RADIO if command == "add" else DELETE_RADIO, content,
                 REQUEST | ACKNOWLEDGE)
    failure = -struct.unpack_from("=i", answer, 16)[0]  # a new radio's number is acknowledged as it is
    if failure > 0:
        sys.exit(os.strerror(failure))


if __name__ == "__main__":
    main(*sys.argv[1:])
