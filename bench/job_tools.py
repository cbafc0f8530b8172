#!/usr/bin/python3
"""The job tools as whole processes, medians of several runs:
  - `pellam show` of a maximal job against `cat` of the same file (goal: within 1.5x)
  - `pellam check` over 1,000 job files on one core (goal: under 2 s)
  - the shared libraries `pellam --help` loads, and those an upload adds (the curl plugin)
Usage: taskset -c 0 bench/job_tools.py BUILD_DIR [RUNS]"""
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

build = Path(sys.argv[1]).resolve()
runs = int(sys.argv[2]) if len(sys.argv) > 2 else 21
pellam = build / "apps" / "cli" / "pellam"
maximal = next(build.glob("**/pellam_maximal_job"))
plugin = build / "lib" / "pellam" / "pellam-ftp-curl.so"


def median_ms(args, times=runs):
    took = []
    for _ in range(times):
        start = time.perf_counter()
        subprocess.run(args, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        took.append((time.perf_counter() - start) * 1000)
    return statistics.median(took)


def libraries(args, env=None):
    done = subprocess.run(args, capture_output=True, text=True, env={**os.environ, "LD_DEBUG": "libs", **(env or {})})
    return sorted({line.split("calling init: ")[1].strip() for line in done.stderr.splitlines() if "calling init: " in line})


work = Path(tempfile.mkdtemp())
try:
    for mode in range(1, 6):
        (work / str(mode)).mkdir()
        subprocess.run([maximal, work / str(mode), "0", str(mode)], check=True)
    jobs = [work / str(mode) / "Max.zpd" for mode in range(1, 6)]
    for job in jobs:
        show, cat = median_ms([pellam, "show", job]), median_ms(["cat", job])
        print(f"show {job.parent.name}/Max.zpd: pellam show {show:.2f} ms, cat {cat:.2f} ms, ratio {show / cat:.2f}")

    # 1,000 saved jobs (the maximal jobs of every mode), then 1,000 random images: the worst
    # case, where nearly every byte is a finding.
    rng = random.Random(15)
    for kind in ("saved jobs", "random images"):
        folder = work / kind.replace(" ", "-")
        folder.mkdir()
        files = []
        for i in range(1000):
            target = folder / f"{i}.zpd"
            if kind == "saved jobs":
                shutil.copy(jobs[i % 5], target)
            else:
                image = bytearray(rng.randbytes(32767))
                image[6101], image[6400] = 11, 1 + i % 5
                target.write_bytes(image)
            files.append(target)
        check = median_ms([pellam, "check", *files], times=max(3, runs // 4))
        print(f"check of 1,000 {kind}: {check:.0f} ms")

    loaded = libraries([pellam, "--help"])
    print(f"pellam --help loads {len(loaded)} shared libraries: {' '.join(Path(l).name for l in loaded)}")
    ldd = subprocess.run(["ldd", plugin], capture_output=True, text=True).stdout.splitlines()
    print(f"an upload loads the plugin, which needs {len(ldd)} more (ldd {plugin.name})")
finally:
    shutil.rmtree(work)
