#!/usr/bin/python3
"""The job tools as whole processes, medians of several runs:
  - `pellam show` of a maximal job of each mode against `cat` of the same file (goal: within
    1.5x), the two run in turn so that both see the same load. Measured three ways:
      spawn wall: posix_spawn to wait4, what a shell pays for the command;
      child CPU:  the user and system time wait4 reports for the child, exec and page faults
                  included and nothing of this script;
      subprocess: subprocess.run's wall time, whose own fork, pipes and bookkeeping add the
                  same cost to both and so pull the ratio towards 1.
  - `pellam check` over 1,000 job files on one core (goal: under 2 s)
  - the shared libraries `pellam --help` loads, and those the upload program needs
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
runs = int(sys.argv[2]) if len(sys.argv) > 2 else 201
pellam = build / "apps" / "cli" / "pellam"
maximal = next(build.glob("**/pellam_maximal_job"))
uploader = build / "lib" / "pellam" / "pellam-ftp-curl"
cat = shutil.which("cat")
null = os.open(os.devnull, os.O_WRONLY)


def spawned(args):
    """Wall milliseconds from spawn to reaped, and the child's own CPU milliseconds."""
    start = time.perf_counter()
    pid = os.posix_spawn(args[0], args, os.environ, file_actions=[(os.POSIX_SPAWN_DUP2, null, 1)])
    _, _, usage = os.wait4(pid, 0)
    return (time.perf_counter() - start) * 1000, (usage.ru_utime + usage.ru_stime) * 1000


def subprocessed(args):
    start = time.perf_counter()
    subprocess.run(args, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return (time.perf_counter() - start) * 1000


def show_against_cat(job):
    """Medians per way of measuring, pellam show first and cat second, runs interleaved."""
    commands = ([str(pellam), "show", str(job)], [cat, str(job)])
    walls, cpus, subs = ([], []), ([], []), ([], [])
    for run in range(runs + 10):
        for k, args in enumerate(commands):
            wall, cpu = spawned(args)
            sub = subprocessed(args)
            if run >= 10:  # the first runs warm the page cache and the allocator
                walls[k].append(wall)
                cpus[k].append(cpu)
                subs[k].append(sub)
    return {name: tuple(statistics.median(t) for t in times)
            for name, times in (("spawn wall", walls), ("child CPU", cpus), ("subprocess", subs))}


def median_ms(args, times):
    return statistics.median(subprocessed(args) for _ in range(times))


def libraries(args):
    done = subprocess.run(args, capture_output=True, text=True, env={**os.environ, "LD_DEBUG": "libs"})
    return sorted({line.split("calling init: ")[1].strip() for line in done.stderr.splitlines() if "calling init: " in line})


print(f"load average {os.getloadavg()[0]:.2f} on {os.cpu_count()} cores; {runs} runs of each")
work = Path(tempfile.mkdtemp())
try:
    for mode in range(1, 6):
        (work / str(mode)).mkdir()
        subprocess.run([maximal, work / str(mode), "0", str(mode)], check=True)
    jobs = [work / str(mode) / "Max.zpd" for mode in range(1, 6)]
    for job in jobs:
        medians = show_against_cat(job)
        print(f"show {job.parent.name}/Max.zpd: " + "; ".join(
            f"{name} {show:.3f} ms vs cat {against:.3f} ms = {show / against:.2f}x"
            for name, (show, against) in medians.items()))

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
        check = median_ms([pellam, "check", *files], times=max(3, min(runs, 21) // 4))
        print(f"check of 1,000 {kind}: {check:.0f} ms")

    loaded = libraries([pellam, "--help"])
    print(f"pellam --help loads {len(loaded)} shared libraries{': ' if loaded else ''}"
          f"{' '.join(Path(l).name for l in loaded)}")
    ldd = subprocess.run(["ldd", uploader], capture_output=True, text=True).stdout.splitlines()
    print(f"an upload runs {uploader.name}, which loads {len(ldd)} (ldd)")
finally:
    shutil.rmtree(work)
