#!/usr/bin/env python3
"""Kills mode-3 saves at random moments and checks that the next start leaves every job whole.

    tests/tools/kill_saves.py build/dev/apps/cli/pellam --runs 1000

Each run starts `pellam run` on a script that saves the conference job over itself (two
versions, taken in turn), kills it with SIGKILL after a random delay within one save's time,
then opens the job with `pellam show`, as the next start of any face would. It counts the
jobs left mixed (files of both versions) and the files left that no job holds, before and
after that start. Not part of the test run: it takes a few minutes.
"""
import argparse
import os
import random
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

JOB = "job/Conference"
FILES = ["UserData.txt", "LnkData.txt", "NetData.txt", "GrpRoom.txt", ".zpd"]


def script(version):
    """A room-combine job; the versions differ in their channels and their report's time."""
    channel, room, stamp = (101, 1, "2026-01-01 10:00:00") if version == 0 else (102, 2, "2026-06-30 18:30:00")
    return "\n".join([
        "call Initailize_Pellam_Variables_And_Form",
        f'clock "{stamp}"',
        "call New_KX_Job_Display_Board_SetUp",
        "select ComboBox48 2", "select ComboBox1 3", "select ComboBox2 1", "select ComboBox6 1",
        "click OptionButton1", "click CommandButton4",
        f"select ComboBox36 {room}", "select ComboBox37 1", f"select ComboBox38 {channel}", "click CommandButton11",
        f'call Create_Pellam_Zpd "{JOB}.txt"',
        "",
    ])


def job_files(folder):
    return {name: open(os.path.join(folder, name), "rb").read() for name in sorted(os.listdir(folder))}


def state(folder, versions):
    """(mixed, leftovers) of the job folder against the two versions' files."""
    files = job_files(folder)
    names = {os.path.basename(JOB) + f for f in FILES}
    leftovers = sorted(set(files) - names)
    matches = set()
    for name in names & set(files):
        which = {v for v in (0, 1) if versions[v].get(name) == files[name]}
        if not which:
            return True, leftovers
        if len(which) == 1:
            matches |= which
    missing = names - set(files)
    return len(matches) > 1 or bool(missing), leftovers


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    ap.add_argument("pellam")
    ap.add_argument("--runs", type=int, default=1000)
    ap.add_argument("--seed", type=int, default=1)
    args = ap.parse_args()
    pellam = os.path.abspath(args.pellam)
    rng = random.Random(args.seed)
    work = tempfile.mkdtemp(prefix="kill-saves-")
    try:
        scripts = []
        for v in (0, 1):
            path = os.path.join(work, f"v{v}.pellam")
            with open(path, "w") as f:
                f.write(script(v))
            scripts.append(path)
        quiet = dict(stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, cwd=work)
        versions, durations = [], []
        folder = os.path.join(work, os.path.dirname(JOB))
        os.makedirs(folder)
        for v in (0, 1, 0, 1, 0, 1):
            start = time.monotonic()
            subprocess.run([pellam, "run", scripts[v]], check=True, **quiet)
            durations.append(time.monotonic() - start)
            if len(versions) < 2:
                versions.append(job_files(folder))
        window = statistics.median(durations)
        print(f"one save run takes {window * 1000:.1f} ms (median of {len(durations)})")

        counts = dict(mixed_before=0, leftovers_before=0, finished_before_kill=0, mixed_after=0, leftovers_after=0)
        for i in range(args.runs):
            process = subprocess.Popen([pellam, "run", scripts[i % 2]], **quiet)
            time.sleep(rng.uniform(0, window))
            if process.poll() is None:
                process.send_signal(signal.SIGKILL)
            else:
                counts["finished_before_kill"] += 1
            process.wait()
            mixed, leftovers = state(folder, versions)
            counts["mixed_before"] += mixed
            counts["leftovers_before"] += bool(leftovers)
            subprocess.run([pellam, "show", os.path.join(work, JOB + ".zpd")], **quiet)
            mixed, leftovers = state(folder, versions)
            counts["mixed_after"] += mixed
            counts["leftovers_after"] += bool(leftovers)
            if mixed or leftovers:
                print(f"run {i}: mixed={mixed} leftovers={leftovers}", file=sys.stderr)
        print(f"{args.runs} kills: " + ", ".join(f"{k.replace('_', ' ')} {v}" for k, v in counts.items()))
        return 1 if counts["mixed_after"] or counts["leftovers_after"] else 0
    finally:
        shutil.rmtree(work, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
