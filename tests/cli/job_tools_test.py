#!/usr/bin/python3
"""The job tools as a person runs them, one command per run:
    job_tools_test.py diff|check|roundtrip PELLAM MAXIMAL_JOB WORK
diff and check compare whole outputs with tests/cli/expected/, and check sends a clean job to a
controller simulator on loopback, as an upload checks it first; roundtrip exports and imports
every sample job, the maximal jobs and seeded random images. --update rewrites the expected
outputs (read them before committing)."""
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import jsonschema

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
EXPECTED = HERE / "expected"
SCHEMA = json.loads((ROOT / "schema" / "pellam-job.schema.json").read_text())
ZPD_SIZE = 32767
RANDOM_IMAGES = int(os.environ.get("PELLAM_RANDOM_IMAGES", "300"))


def run(*args, stdin=None):
    return subprocess.run([str(a) for a in args], capture_output=True, text=True, input=stdin)


def samples(pellam, work):
    """The sample jobs the examples save, by name."""
    (work / "samples").mkdir()
    for example in sorted((ROOT / "examples").glob("*.pellam")):
        folder = work / "examples" / example.stem
        folder.mkdir(parents=True)
        done = subprocess.run([pellam, "run", str(example)], cwd=folder, capture_output=True, text=True)
        assert done.returncode == 0, done.stdout + done.stderr
        for saved in (folder / "samples").glob("*"):
            saved.rename(work / "samples" / saved.name)
    return {p.stem: p for p in sorted((work / "samples").glob("*.zpd"))}


def patched(source, target, changes):
    data = bytearray(source.read_bytes())
    for offset, value in changes.items():
        if isinstance(value, bytes):
            data[offset:offset + len(value)] = value
        else:
            data[offset] = value
    target.write_bytes(data)
    return target


def compare(name, text, update):
    expected = EXPECTED / (name + ".out")
    if update:
        expected.write_text(text)
        return True
    if expected.read_text() != text:
        print(f"--- {name}: printed\n{text}--- expected\n{expected.read_text()}")
        return False
    return True


def diff_cases(s, work):
    conference, lobby = s["Conference"], s["Lobby"]
    # Channel 101 moves from room 1, group 1 to room 2, group 3.
    moved = patched(conference, work / "moved.zpd", {202: 3, 203: 2})
    return {
        "same": ([lobby, lobby], 0),
        "room_combine_entry": ([conference, moved], 1),
        # The first group of input 2 (five channels) at 50% instead of 60%.
        "channel_level": ([lobby, patched(lobby, work / "level.zpd", {8604: 50})], 1),
        "board_and_bytes": ([conference, patched(conference, work / "mode.zpd", {6400: 2, 203: 5}), "--bytes"], 1),
        "other_mode": ([s["Ballroom"], s["Hotel"]], 1),
        "unused_byte_only": ([lobby, patched(lobby, work / "unused.zpd", {30000: 7})], 1),
        "not_a_job": ([lobby, work / "samples" / "Lobby.txt"], 2),
    }


def check_cases(s, work):
    lobby, theatre = s["Lobby"], s["Theatre"]
    short = work / "short.zpd"
    short.write_bytes(lobby.read_bytes()[:1000])
    entry = theatre.read_bytes()[8300:8308]
    return {
        "clean": ([lobby], 0),
        "short_file": ([short], 2),
        "board_values": ([patched(lobby, work / "board.zpd", {6101: 7, 6400: 9, 6100: 5, 6200: 3})], 2),
        # Input 3's block: a count past 150, then a group at level 150 whose pairs run past the end.
        "channel_block": ([patched(lobby, work / "block.zpd", {8902: 200, 8903: 200, 8904: 150})], 2),
        "channel_block_json": ([work / "block.zpd", "--json"], 2),
        # Input 1's first entry twice, and a second input whose entry has a kind no list names.
        "preset_entries": ([patched(theatre, work / "presets.zpd", {8308: entry, 8600: 3, 8602: 5})], 2),
        "room_combine_warnings": ([s["Conference"]], 1),
        "slaved_with_tables": ([patched(s["Ballroom"], work / "slaved.zpd", {6200: 0, 6201: 5})], 1),
        "several_files": ([lobby, s["Conference"]], 1),
    }


def command_outputs(command, cases, pellam, work, update):
    ok = True
    for name, (args, status) in cases.items():
        done = run(pellam, command, *args)
        text = (done.stdout + done.stderr).replace(str(work) + "/", "")
        if done.returncode != status:
            print(f"{name}: exit {done.returncode}, expected {status}\n{text}")
            ok = False
        ok = compare(f"{command}_{name}", text, update) and ok
        if "--json" in args:
            json.loads(done.stdout)
    return ok


def uploaded(pellam, job, work):
    """A clean job goes through the upload program to the controller, whole."""
    root, port = work / "controller", work / "controller.port"
    root.mkdir()
    sim = subprocess.Popen(["/usr/bin/python3", ROOT / "tests" / "support" / "controller_sim.py",
                            "--port-file", port, "--root", root, "--stations", "5"])
    try:
        for _ in range(200):
            if port.exists():
                break
            time.sleep(0.05)
        env = {**os.environ, "PELLAM_CONTROLLER_SETTINGS": str(work / "none.ini")}
        sent = subprocess.run([pellam, "upload", job, "--netid", "5", "--to", f"127.0.0.1:{port.read_text()}"],
                              capture_output=True, text=True, env=env)
        taken = root / "Q9z5.zpd"
        if sent.returncode == 0 and taken.exists() and taken.read_bytes() == job.read_bytes():
            return True
        print(f"--- upload: status {sent.returncode}\n{sent.stdout}{sent.stderr}")
        return False
    finally:
        sim.terminate()
        sim.wait()


def round_trip(pellam, zpd, work, name, validate=True):
    """Export, check the document against the schema, import; the saved files must equal the
    ones the job was saved with (the room-combine report carries the time of its save)."""
    exported = run(pellam, "export", zpd)
    assert exported.returncode == 0, exported.stderr
    if validate:
        jsonschema.validate(json.loads(exported.stdout), SCHEMA)
    folder = work / "imported" / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    imported = run(pellam, "import", "-", "--save", folder / (zpd.stem + ".txt"), stdin=exported.stdout)
    assert imported.returncode == 0, f"{name}: {imported.stderr}"
    for original in zpd.parent.glob(zpd.stem + "*"):
        if original.name.endswith("UserData.txt"):
            continue
        copy = folder / original.name
        assert copy.read_bytes() == original.read_bytes(), f"{name}: {original.name} differs after import"
    return exported.stdout


def refusals(pellam, sample, work):
    """A document the board cannot take is refused with the path of its first problem, and
    nothing is written."""
    base = json.loads(run(pellam, "export", sample).stdout)
    cases = [
        ("not json", "{", "not JSON"),
        ("mode", {**base, "board": {**base["board"], "operatingMode": {"value": 6}}}, "$.board.operatingMode.value: 6 is not 1..5"),
        ("missing", {k: v for k, v in base.items() if k != "board"}, "$.board: missing"),
        ("channel", {**base, "roomCombine": [{"channel": 2049, "group": 1, "room": 1}]}, "$.roomCombine[0].channel: 2049 is not 1..2048"),
        ("other mode", {**base, "presets": []}, "$.presets: not a table of operating mode 3"),
        ("field", {**base, "roomLinks": [{"input": 1, "firstRoom": 1, "secondRoom": 2, "third": 3}]}, "$.roomLinks[0].third: not a field"),
        ("twice", {**base, "stations": [{"netId": 4, "type": {"value": 9}, "room": 1}] * 2}, "$.stations[1].netId: net id 4 is listed twice"),
    ]
    ok = True
    for name, doc, message in cases:
        folder = work / "refused"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        text = doc if isinstance(doc, str) else json.dumps(doc)
        done = run(pellam, "import", "-", "--save", folder / "Job.txt", stdin=text)
        if done.returncode != 1 or message not in done.stderr or any(folder.iterdir()):
            print(f"refusal {name}: exit {done.returncode}, {done.stderr!r}, wrote {list(folder.iterdir())}")
            ok = False
    return ok


def main():
    update = "--update" in sys.argv
    command, pellam, maximal, work = [a for a in sys.argv[1:] if a != "--update"]
    pellam, maximal = str(Path(pellam).resolve()), str(Path(maximal).resolve())
    work = Path(work)
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    s = samples(pellam, work)
    if command == "diff":
        ok = command_outputs("diff", diff_cases(s, work), pellam, work, update)
    elif command == "check":
        ok = command_outputs("check", check_cases(s, work), pellam, work, update)
        # An upload runs the same check first and sends nothing with errors unless forced.
        refused = run(pellam, "upload", work / "board.zpd", "--netid", "3", "--to", "127.0.0.1:9")
        ok = refused.returncode == 1 and "not sent" in refused.stderr and ok
        ok = uploaded(pellam, s["Conference"], work) and ok
    else:
        for name, zpd in s.items():
            round_trip(pellam, zpd, work, name)
        for mode in range(1, 6):
            folder = work / f"maximal{mode}"
            folder.mkdir()
            assert run(maximal, folder, 0, mode).returncode == 0
            round_trip(pellam, folder / "Max.zpd", work, f"maximal{mode}")
        # Random images, made into saved jobs by one import; that job must then come back whole.
        # In memory where there is such a folder: a save flushes every file to the disk.
        memory = Path(tempfile.mkdtemp(dir="/dev/shm" if os.path.isdir("/dev/shm") else None))
        rng = random.Random(15)
        for i in range(RANDOM_IMAGES):
            image = bytearray(rng.randbytes(ZPD_SIZE))
            image[6101] = 11
            image[6400] = rng.randint(1, 5)
            folder = memory / str(i)
            folder.mkdir()
            (folder / "R.zpd").write_bytes(image)
            exported = run(pellam, "export", folder / "R.zpd")
            saved = run(pellam, "import", "-", "--save", folder / "Job.txt", stdin=exported.stdout)
            assert saved.returncode == 0, f"random image {i}: {saved.stderr}"
            # The schema's validator takes a second for a document of a random image: a few do.
            round_trip(pellam, folder / "Job.zpd", memory, f"random{i}", validate=i < 10)
            shutil.rmtree(folder)
        shutil.rmtree(memory)
        ok = refusals(pellam, s["Conference"], work)
    if ok:
        shutil.rmtree(work, ignore_errors=True)
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main())
