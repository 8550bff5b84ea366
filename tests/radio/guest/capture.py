#!/usr/bin/python3
"""capture.py SECONDS FILE: listens on hwsim0, where every frame of the simulated air passes, and writes beacons and
probe responses to FILE as a capture, each once however often it is repeated: the air of a minute is a few kilobytes."""

import socket
import struct
import sys
import time

ANY_PROTOCOL = 3
RADIOTAP = 127  # the capture's link type
BEACON, PROBE_RESPONSE = 0x80, 0x50
HEADER, CLOCK = 24, 8  # bytes: the frame's own, and the sender's time, which is another in every frame


def identity(packet: bytes) -> tuple | None:
    """What makes a frame a new one: kind, channel, sender, and what it tells of it. None for other frames."""
    frame = packet[int.from_bytes(packet[2:4], "little"):]
    if len(frame) < HEADER + CLOCK or frame[0] not in (BEACON, PROBE_RESPONSE):
        return None
    frequency = packet[18:20]  # behind the flags, the time and the rate
    return frame[0], frequency, frame[16:22], frame[HEADER + CLOCK:]


def main(seconds: float, file: str) -> None:
    listener = socket.socket(socket.AF_PACKET, socket.SOCK_RAW, socket.htons(ANY_PROTOCOL))
    listener.setsockopt(socket.SOL_SOCKET, 33, 8 << 20)  # SO_RCVBUFFORCE
    listener.bind(("hwsim0", 0))
    listener.settimeout(0.5)
    seen = set()
    end = time.monotonic() + seconds
    with open(file, "wb") as capture:
        capture.write(struct.pack("<IHHiIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, RADIOTAP))
        while time.monotonic() < end:
            try:
                packet = listener.recv(65535)
            except TimeoutError:
                continue
            known = identity(packet)
            if known and known not in seen:
                seen.add(known)
                capture.write(struct.pack("<IIII", int(time.time()), 0, len(packet), len(packet)) + packet)


if __name__ == "__main__":
    main(float(sys.argv[1]), sys.argv[2])
