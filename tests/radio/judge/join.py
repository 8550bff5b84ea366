"""Judges what scenarios/join.sh has left."""

import re
from pathlib import Path

from settings import PASSWORD
from steps import Faults, Step, judge

# Step: the network that the machine is joined to in the end, as iw prints its name.
JOINED = {
    "wpa2": "wpa2",
    "stored": "wpa2",
    "stored-changed": "wpa2",
    "transition": "wpa2 wpa3",
    "wep": "wep",
    "hidden": r"hidden \xff\xfe",
}

# Step: what its message has to speak of. No two causes may share a message.
WRONG_PASSWORD = r"password is not correct"
FAILED = {
    "wpa2-wrong": WRONG_PASSWORD,
    "stored-wrong": WRONG_PASSWORD,
    "wpa3-wrong": r"password is probably not correct",
    "enterprise": r"network settings",
    "leaving": r"out of reach",
    "refused": r"not permit this user to join",
    "power-refused": r"not permit this user to switch",
    "radio-off": r"radio is off",
}


def stored_profiles(step: Step) -> list[str]:
    return re.split(r"^(?=\[connection\])", step.text("profiles.txt"), flags=re.M)[1:]


def judge_joined(step: Step, network: str, faults: Faults) -> None:
    faults.expect(step.status == 0, f"{step.name}: {step.message}")
    faults.expect(f"\tSSID: {network}\n" in step.text("link.txt"), f"{step.name}: {step.text('link.txt').strip()!r}")
    faults.expect(len(stored_profiles(step)) == 1, f"{step.name}: {len(stored_profiles(step))} profiles")


def judge_failed(step: Step, pattern: str, faults: Faults) -> None:
    faults.expect(step.status == 1, f"{step.name}: exit status {step.status}")
    faults.expect(bool(re.search(pattern, step.message)), f"{step.name}: {step.message!r} does not say why")
    if step.name.startswith("power"):
        return
    if step.name.startswith("stored"):
        profiles = stored_profiles(step)
        faults.expect(len(profiles) == 1 and f"psk={PASSWORD}" in profiles[0], f"{step.name} has changed {profiles}")
    else:
        faults.expect(not stored_profiles(step), f"{step.name} has left a profile behind")
        faults.expect("Not connected" in step.text("link.txt"), f"{step.name} has left the machine joined")


def main(results: Path, faults: Faults) -> None:
    for name in [*JOINED, *FAILED]:
        step = Step(results, name)
        print(step)
        faults.expect("horse" not in step.text("stdout") + step.text("stderr"), f"{name}: the password was told")
        if name in JOINED:
            judge_joined(step, JOINED[name], faults)
        else:
            judge_failed(step, FAILED[name], faults)
    # A stored profile whose password was wrong has taken the new one, and kept what else was in it.
    profile = Step(results, "stored-changed").text("profiles.txt")
    faults.expect(f"psk={PASSWORD}" in profile and "dns=10.9.8.7" in profile, f"stored-changed: {profile}")
    for name, blocked in (("power-off", "1\n"), ("power-on", "0\n")):
        step = Step(results, name)
        faults.expect(step.status == 0 and step.text("blocked") == blocked, f"{name}: {step.message}")


if __name__ == "__main__":
    judge(main)
