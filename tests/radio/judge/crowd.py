"""Makes a crowd of access points for scenarios/crowd.sh, and judges what it has left."""

import random
from pathlib import Path

import iw_dump
from compare import Opinion, compare_lists, print_differences, print_opinions
from elements import country, eht, element, he, rsn, vht, wpa
from scans import TOLERANCE, Scans
from steps import Faults, Step, judge, unix_time

COUNT, SEED = 1000, 1
LEAST_HEARD = 0.9  # of the crowd: an emulated machine that is short of time misses some
CHANNELS = [*range(1, 14), *range(36, 65, 4), *range(100, 141, 4), *range(149, 166, 4)]
PSK, EAP, SAE, OWE = 2, 1, 8, 18
PRIVACY = 0x10
SECURITY = (b"", wpa([PSK]), wpa([PSK]) + rsn([PSK]), rsn([PSK]), rsn([PSK, SAE]), rsn([SAE]), rsn([OWE]), rsn([EAP]))
DSSS, OFDM = bytes.fromhex("82848b96"), bytes.fromhex("8c129824b048606c")


def ht(channel: int, offset: int) -> bytes:
    """Capabilities, and an operation element with a second half above (1), below (3) or none."""
    wide = bool(offset)
    return (element(45, bytes([0x0E if wide else 0x0C, 0x09, 0x17, 0xFF, 0xFF]) + bytes(21))
            + element(61, bytes([channel, offset | wide << 2]) + bytes(20)))


def made_up(number: int, chance: random.Random) -> str:
    """A line for the medium."""
    channel = chance.choice(CHANNELS)
    low = channel < 36
    name = f"{chance.choice(('Harbour', 'Café', 'Атлас', '北', 'Quay <b>'))} {number}".encode()
    security = chance.choice(SECURITY)
    frame = element(0, name) + element(1, DSSS + OFDM[:4] if low else OFDM)
    frame += country(chance.choice((b"DE", b"GB", b"US"))) if chance.random() < 0.4 else b""
    frame += security
    generation = chance.randrange(5)
    frame += ht(channel, chance.choice((0, 1, 3))) if generation else b""
    frame += vht(chance.choice((0, 1, 2)), 42, 0) if generation > 1 and not low else b""
    frame += he() if generation > 2 else b""
    frame += eht(chance.choice((None, 0, 1, 2, 3, 4))) if generation > 3 else b""
    capability = 1 | (PRIVACY if security or chance.random() < 0.2 else 0)
    address = ":".join(f"{byte:02x}" for byte in (0x0A, 0x10, 0, *number.to_bytes(2, "big"), chance.randrange(256)))
    frequency = 5 * channel + (2407 if low else 5000)
    return f"{address} {frequency} {chance.randint(-92, -35)} {capability:x} {frame.hex()}"


def make(file: Path, count: int) -> None:
    chance = random.Random(SEED)
    file.write_text("".join(made_up(number, chance) + "\n" for number in range(count)))


def main(results: Path, faults: Faults) -> None:
    scans = Scans(results)
    step = Step(results, "crowd")
    opinion = Opinion("iw")
    if faults.ended_well(step):
        records = step.document("list.json")["networks"]
        # The machine may be so short of time that scans come and go before the program has begun its first.
        first = scans.last_ended_before(min(map(unix_time, records), default=step.ended))
        since = first.started - scans.booted
        entries = iw_dump.sightings(scans.listed_between(step.begun, step.ended) + step.listed, since - TOLERANCE)
        print_differences(compare_lists(opinion, records, entries, since))
        print(f"{len(records)} of {COUNT} access points in {step.ended - step.begun:.0f} s")
        faults.expect(len(records) >= LEAST_HEARD * COUNT, "too few of them have been heard")
        print_opinions([opinion], faults)


if __name__ == "__main__":
    judge(main)
