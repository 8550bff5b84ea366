"""Tells what peers.sh has measured as a Markdown table: run with the results folder; exit status 1 where a program has
shown no list."""

import json
import sys
from pathlib import Path

from plans import CROWDS

NAMES = ("aerolith", "linssid", "wpa_gui")
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


def main(results: Path) -> int:
    missing = 0
    for size in CROWDS["peers"]:
        files = {name: results / f"{name}-{size}.json" for name in NAMES}
        measured = {name: json.loads(file.read_text()) for name, file in files.items() if file.exists()}
        for name in files.keys() - measured.keys():
            print(f"FAULT: {name} has shown no list among {size}: see {name}-{size}.log")
        missing += len(files) - len(measured)
        if "aerolith" in measured and len(measured) > 1:
            table(size, measured)
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
