#!/usr/bin/python3
"""commands.py SOURCE BUILD: runs every command that a document of SOURCE shows, with the programs of BUILD, one after
the other in a folder of the document's own.

A command that takes long, needs the user's radio or changes the machine is run in a form of its own, or not at all
(FORMS). A command that fails fails the test; so does an entry of FORMS that fits no command of any document."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

# What commands become, one entry after the other; None where other tests run them, which are named beside it.
FORMS = (
    (r"^\./run$", None),  # its two steps, building and starting: package.build and desktop.*
    (r"^\./test$", None),  # this test among the others
    (r"--target fuzzers$", None),  # fuzz.build
    (r"--target aerolith radio-medium$", None),  # package.build
    (r"^(AEROLITH_\w+=('.*'|\S+) )?tests/radio/run\.sh ", None),  # the same script and machine as in radio.*
    (r"^docs/screenshots/look ", None),  # for the eye; the views, and the way to each, are desktop.accessibility's
    (r"^packaging/install-packages (air|peers)$", None),  # hundreds of megabytes that only the long forms need
    # Within CMake and ctest: what they would do alone.
    (r"^(cmake --preset \w+)( -D\S+| && cmake --build --preset bench)*$", r"\1 -N"),
    (r"^cmake --build --preset dev$", r"\g<0> -- -n"),
    (r"^ctest --preset dev -[LR] \w+$", r"\g<0> -N | grep -c 'Test *#'"),
    (r"^bench/start( build/bench tray)?$", "bench/start build/dev quick"),
    # Short, and independent of the machine's radio.
    (r"^\./run --simulate", "timeout --foreground --preserve-status 3 aerolith --simulate"),
    (r"\baerolith-scan(?! --help)", "aerolith-scan --simulate docs/scenarios/moving-away.json"),
    (r"0a:1b:2c:3d:4e:5f", "02:5a:30:00:00:04"),  # is in there
    (r"--interval \d+", "--interval 0"),
    (r"--watch(?! --cycles)", "--watch --cycles 2"),
    (r"--cycles (\d+)(?!.*--interval)", r"--cycles \1 --interval 0"),
    (r"build/bench/bin/(\w+)", r"\1 --benchmark_min_time=0.001"),
    (r"-runs=\d+", "-runs=1000"),
    (r"AEROLITH_STRESS_CYCLES=\d+", "AEROLITH_STRESS_CYCLES=100"),
    # The package of the example.
    (r"^(packaging/sign-update .* )(\S+\.deb)$", r"echo package >\2 && \1\2"),
)


def commands(document):
    """The indented lines outside of lists that are neither markup nor a drawing, without the remarks behind them."""
    text = re.sub(r"\\\n +", "", document.read_text(encoding="utf-8"))
    for line in text.splitlines():
        if shown := re.match(r"    (?=[\w./])(?!\w+ ─)(.*)", line):
            yield re.sub(r"\s+#.*", "", shown[1])


def form(command, seen):
    for pattern, replacement in FORMS:
        if re.search(pattern, command):
            seen.add(pattern)
            if replacement is None:
                return None
            command = re.sub(pattern, replacement, command)
    return command


def folder_like(source, build, path):
    """A folder in which the repository's paths lead to it, and what is written stays out of it."""
    for entry in source.iterdir():
        if entry.name not in (".git", "build"):
            (path / entry.name).symlink_to(entry)
    (path / "build").mkdir()
    for name in (build.name, "fuzz"):
        (path / "build" / name).symlink_to(source / "build" / name)


def run(command, folder, environment):
    """Whether it has ended well."""
    print("+", command, flush=True)
    ended = subprocess.run(["bash", "-o", "pipefail", "-c", command], cwd=folder, env=environment, timeout=120,
                           stdin=subprocess.DEVNULL, check=False)
    if ended.returncode != 0:
        print("ended with", ended.returncode, flush=True)
    return ended.returncode == 0


def main(source, build):
    listed = subprocess.run(["git", "-C", source, "ls-files", "*.md"], capture_output=True, text=True, check=True)
    seen, failed = set(), 0
    for name in listed.stdout.split():
        shown = list(commands(source / name))
        if not shown:
            continue
        print(f"== {name}")
        with tempfile.TemporaryDirectory() as path:
            folder = pathlib.Path(path)
            folder_like(source, build, folder)
            environment = dict(os.environ, PATH=f"{build / 'bin'}:{os.environ['PATH']}", XDG_CONFIG_HOME=path)
            for command in shown:
                what = form(command, seen)
                # CMake knows its folders by their real names.
                where = source if re.match("cmake|ctest", command) else folder
                failed += what is not None and not run(what, where, environment)
    unseen = {pattern for pattern, _ in FORMS} - seen
    for pattern in unseen:
        print("no document shows", pattern)
    return failed + len(unseen)


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])) != 0)
