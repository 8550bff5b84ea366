"""Tells what peers.sh has measured as a Markdown table; a program that has shown no list is a fault."""

import json
from pathlib import Path

from peer import PEERS
from plans import CROWDS
from steps import Faults, judge

COLUMNS = {
    "first_list": ("First list (s)", ".1f"),
    "memory": ("Memory (MiB)", ".1f"),
    "cpu": ("CPU in 60 s (s)", ".2f"),
    "services_cpu": ("of services (s)", ".2f"),
    "processes": ("Processes", "d"),
    "scans": ("Scans", "d"),
}
COMPARED = ("first_list", "memory", "cpu", "processes")


def row(*cells: str) -> None:
    print("|", " | ".join(cells), "|")


def ratio(own: float, best: float) -> str:
    return f"{own / best:.2f}" if best else "same" if own == best else "more"


def table(size: int, measured: dict) -> None:
    row(f"{size} access points", *(title for title, _ in COLUMNS.values()))
    row("---", *["---:"] * len(COLUMNS))
    for name, one in measured.items():
        row(name, *(format(one[key], form) for key, (_, form) in COLUMNS.items()))
    peers = [one for name, one in measured.items() if name != "aerolith"]
    row("Aerolith / the best other", *(
        ratio(measured["aerolith"][key], min(peer[key] for peer in peers)) if key in COMPARED else ""
        for key in COLUMNS))
    print()


def main(results: Path, faults: Faults) -> None:
    for size in CROWDS["peers"]:
        files = {name: results / f"{name}-{size}.json" for name in PEERS}
        measured = {name: json.loads(file.read_text()) for name, file in files.items() if file.exists()}
        for name in PEERS:
            faults.expect(name in measured, f"{name} has shown no list among {size}: see {name}-{size}.log")
        if "aerolith" in measured and len(measured) > 1:
            table(size, measured)


if __name__ == "__main__":
    judge(main)
