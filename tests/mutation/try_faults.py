#!/usr/bin/python3
"""Tells which planted faults no test sees.

usage: try_faults.py BUILD FAULTS RESULTS [--sample N] [--seed S] [--file PART] [--again] [--resume] [--minutes N]
                     [--most N] [--thin N] [--jobs N]

Runs each test of BUILD once to learn which faults it comes by, then each fault with the tests that come by it, until
one fails: first those that are quick and come by few faults. RESULTS keeps what was seen.
--sample: only so many faults, taken by chance from the seed; --file: those of files whose name has this part.
--again: what the last run saw is not tried again. --resume: goes on after an interrupted run: what it tried is not
tried again, and what it learnt of a test is not learnt again; with --again only the latter. --minutes: no fault is
begun after this time.
--most: at most so many tests for one fault; --thin: of a test that has more than 30 parameters every so-many-th is
used. Both can only make fewer faults seen.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import threading
import time

HERE = pathlib.Path(__file__).resolve().parent
FIRST_TESTS = 12
NOISE = 0.5  # seconds: below it tests count as equally quick
MEMORY = 6 << 20  # kilobytes of address space

# Each test has the processes, the shared memory and the temporary files for itself, and all of them end with it.
APART = ["unshare", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc"] + \
    ([] if os.geteuid() == 0 else ["--map-root-user"])
WITHIN = """mount -t tmpfs -o size=1g tmpfs /dev/shm && mount -t tmpfs -o size=1g tmpfs /tmp || exit 125
ulimit -v "$1" -t "$2" -c 0; limit=$3; shift 3; timeout -k 1 "$limit" "$@"; exit $?"""


class Test:
    """A test that ctest knows; `filter` is its name in a GoogleTest program."""

    def __init__(self, entry):
        properties = {item["name"]: item["value"] for item in entry.get("properties", [])}
        self.name = entry["name"]
        self.command = entry.get("command", [])
        self.folder = properties.get("WORKING_DIRECTORY", ".")
        self.filter = next((word.split("=", 1)[1] for word in self.command if word.startswith("--gtest_filter=")), None)
        self.seconds = 0.0
        self.faults = set()


def run(command, folder, seconds, environment):
    """Whether the command succeeds within the limits, and the seconds of processor time that it took."""
    limits = [str(MEMORY), str(int(5 + 5 * seconds)), str(int(30 + 20 * seconds))]
    process = subprocess.Popen(APART + ["sh", "-c", WITHIN, "sh"] + limits + command, cwd=folder,
                               env={**os.environ, **environment}, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, used = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return process.returncode == 0, used.ru_utime + used.ru_stime


def keep(path, data):
    """An interrupted run leaves the file whole."""
    new = path.with_suffix(".new")
    new.write_text(json.dumps(data, indent=0))
    new.replace(path)


def tests_of(build):
    listing = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], check=True, capture_output=True,
                             text=True).stdout
    return [test for test in map(Test, json.loads(listing)["tests"]) if test.command]


def record(test, size, folder):
    """Learns which faults a test comes by; they may be in any of its processes."""
    with tempfile.NamedTemporaryFile(dir=folder) as reached:
        reached.write(bytes(size))
        reached.flush()
        passed, test.seconds = run(test.command, test.folder, 100, {"VRX_FAULT_RECORD": reached.name})
        test.faults = {number for number, byte in enumerate(pathlib.Path(reached.name).read_bytes()) if byte}
    return passed


def record_all(tests, size, folder, pool, is_known):
    """The tests that pass, with what they come by. What is known is kept in a file."""
    path = folder / "reached.json"
    known = json.loads(path.read_text()) if is_known and path.is_file() else {}
    for test in tests:
        if test.name in known:
            test.seconds, test.faults = known[test.name][0], set(known[test.name][1])
    new = [test for test in tests if test.name not in known]
    failed = {test.name for test, passed in zip(new, pool.map(lambda test: record(test, size, folder), new))
              if not passed}
    if failed:
        print("These fail without a fault and see none:", *sorted(failed), sep="\n    ")
    tests = [test for test in tests if test.name not in failed]
    keep(path, {test.name: [test.seconds, sorted(test.faults)] for test in tests})
    return tests


def programs(tests):
    """Commands for these tests: those of one program run in one process."""
    together = collections.defaultdict(list)
    for test in tests:
        if test.filter:
            together[test.command[0], test.folder].append(test)
        else:
            yield test.command, test.folder, test.seconds
    for (program, folder), group in together.items():
        names = ":".join(test.filter for test in group)
        yield [program, "--gtest_filter=" + names, "--gtest_fail_fast"], folder, sum(test.seconds for test in group)


def thinned(tests, step):
    """The tests, without most parameters of those that have many."""
    families = collections.defaultdict(list)
    for test in tests:
        families[test.command[0], (test.filter or test.name).rpartition("/")[0] or test.name].append(test)
    return [test for family in families.values() for test in family[::step if len(family) > 30 else 1]]


def is_seen(number, tests, most):
    tests = sorted(tests, key=lambda test: max(test.seconds, NOISE) * len(test.faults))
    for part in (tests[:FIRST_TESTS], tests[FIRST_TESTS:most]):
        for command, folder, seconds in sorted(programs(part), key=lambda item: item[2]):
            if not run(command, folder, seconds, {"VRX_FAULT": str(number)})[0]:
                return True
    return False


def key_of(fault):
    return tuple(fault[part] for part in ("file", "kind", "code", "nth"))


def without_difference():
    """What equivalent.txt tells: below a file its lines, below each line the kinds and the code of faults, and why."""
    found = set()
    file = line = ""
    for row in (HERE / "equivalent.txt").read_text().splitlines():
        depth = (len(row) - len(row.lstrip())) // 4
        if depth == 0:
            file = row
        elif depth == 1:
            line = row.strip()
        elif depth == 2:
            found.add((file, line, row.strip()))
    return found


def report(faults, results):
    equivalent = without_difference()
    tables = collections.defaultdict(collections.Counter)
    unseen = []
    for fault in faults:
        key = key_of(fault)
        table = tables[str(pathlib.PurePath(fault["file"]).parent)]
        table["planted"] += 1
        outcome = results.get(key)
        if outcome is None:
            continue
        place = (fault["file"], fault["text"], f"{fault['kind']}: {fault['code']}")
        is_equivalent = outcome != "seen" and place in equivalent
        table["tried"] += 1
        table["reached"] += outcome != "not reached"
        table["equivalent"] += is_equivalent
        table["seen"] += outcome == "seen"
        if outcome != "seen" and not is_equivalent:
            unseen.append((fault, outcome))
    for fault, outcome in unseen:
        print(f"{fault['file']}:{fault['line']}: {fault['kind']}: {fault['code'][:100]}"
              + (" (not reached)" if outcome == "not reached" else ""))
    columns = ("planted", "tried", "reached", "equivalent", "seen")
    print(f"{'':20}" + "".join(f"{column:>12}" for column in columns) + f"{'rate':>8}")
    tables["all"] = sum(tables.values(), collections.Counter())
    for folder, table in tables.items():
        rate = 100 * table["seen"] / max(table["tried"] - table["equivalent"], 1)
        print(f"{folder:20}" + "".join(f"{table[column]:12}" for column in columns) + f"{rate:7.1f}%")
    return rate


def main():
    options = argparse.ArgumentParser()
    for name in ("build", "faults", "results"):
        options.add_argument(name)
    options.add_argument("--sample", type=int)
    options.add_argument("--seed", type=int, default=1)
    options.add_argument("--jobs", type=int, default=2)
    options.add_argument("--thin", type=int, default=1)
    options.add_argument("--most", type=int)
    options.add_argument("--minutes", type=float, default=float("inf"))
    for name in ("--again", "--resume"):
        options.add_argument(name, action="store_true")
    options.add_argument("--file", default="")
    given = options.parse_args()

    faults = json.loads(pathlib.Path(given.faults).read_text())
    results_path = pathlib.Path(given.results)
    kept = json.loads(results_path.read_text()) if results_path.is_file() else []
    last = {tuple(key): outcome for *key, outcome in kept}
    results = dict(last) if given.again or given.resume or given.file else {}
    lock = threading.Lock()
    stop = time.monotonic() + 60 * given.minutes
    with concurrent.futures.ThreadPoolExecutor(given.jobs) as pool:
        size = 1 + max(fault["number"] for fault in faults)
        tests = record_all(thinned(tests_of(given.build), given.thin), size, results_path.resolve().parent, pool,
                           given.resume)
        print(f"{len(tests)} tests recorded", flush=True)

        def attempt(fault):
            if time.monotonic() > stop:
                return
            able = [test for test in tests if fault["number"] in test.faults]
            is_found = bool(able) and is_seen(fault["number"], able, given.most)
            outcome = "seen" if is_found else "not seen" if able else "not reached"
            with lock:
                results[key_of(fault)] = outcome
                keep(results_path, [[*key, result] for key, result in results.items()])

        chosen = [fault for fault in faults if given.file in fault["file"]]
        if given.sample:
            chosen = random.Random(given.seed).sample(chosen, min(given.sample, len(chosen)))
        done = {key for key, outcome in last.items() if (outcome == "seen" if given.again else given.resume)}
        list(pool.map(attempt, [fault for fault in chosen if key_of(fault) not in done]))
    return 0 if report(faults, results) >= 90 else 1


sys.exit(main())
