"""Information elements that hostapd does not make by itself, for its `vendor_elements`: it puts any bytes there into
its frames."""


def element(number: int, body: bytes) -> bytes:
    return bytes([number, len(body)]) + body


def extension(number: int, body: bytes) -> bytes:
    return element(255, bytes([number]) + body)


def country(letters: bytes, environment: bytes = b" ") -> bytes:
    """With one run of channels: from 1, 13 of them, 20 dBm."""
    return element(7, letters + environment + bytes([1, 13, 20]))


def vht(width_code: int, segment0: int, segment1: int) -> bytes:
    """Capabilities (MCS 0 to 7, one stream) and operation, in the way of before 2016 as well as since."""
    streams = bytes.fromhex("fcff0000fcff0000")
    return element(191, bytes(4) + streams) + element(192, bytes([width_code, segment0, segment1]) + b"\xfc\xff")


def he() -> bytes:
    """Capabilities and operation of 802.11ax, without a width."""
    return extension(35, bytes(6 + 11) + b"\xfa\xff\xfa\xff") + extension(36, bytes(4) + b"\xfc\xff")


def eht(width_code: int | None, segment0: int = 0, segment1: int = 0) -> bytes:
    """Capabilities and operation of 802.11be; None leaves the width to the older elements."""
    capabilities = extension(108, bytes(2 + 9) + b"\x11" * 9)
    information = b"" if width_code is None else bytes([width_code, segment0, segment1])
    return capabilities + extension(106, bytes([len(information) > 0]) + b"\x44" * 4 + information)


def multiple_bssid(profiles: list[tuple[bytes, int, bytes]]) -> bytes:
    """Up to seven more access points in one frame, each a name, a capability field and the elements that it has of its
    own; the n-th has the frame's address with n in its last three bits."""
    body = bytes([3])
    for index, (ssid, capability, own) in enumerate(profiles, 1):
        body += element(0, element(83, capability.to_bytes(2, "little")) + element(0, ssid)
                        + element(85, bytes([index])) + own)
    return element(71, body)


def security(organisation: bytes, suites: list[int], cipher: int) -> bytes:
    """What the RSN and the WPA element have in common: a version, ciphers for groups and pairs, key management."""
    one = organisation + bytes([cipher])
    return (b"\x01\x00" + one + b"\x01\x00" + one + len(suites).to_bytes(2, "little")
            + b"".join(organisation + bytes([suite]) for suite in suites))


def rsn(suites: list[int]) -> bytes:
    return element(48, security(b"\x00\x0f\xac", suites, 4) + bytes(2))


def wpa(suites: list[int]) -> bytes:
    return element(221, b"\x00\x50\xf2\x01" + security(b"\x00\x50\xf2", suites, 2))
