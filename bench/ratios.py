"""Prints the ratio table of benchmark results.

A benchmark named THING_ours is set against THING_reference of the same program and the same arguments; where there is
no reference, the time is printed alone. limits.txt says for a THING which ratio is the goal.

usage: ratios.py LIMITS RESULTS_FOLDER [PROGRAM ...]
"""
import json
import pathlib
import sys


def limits_read(path):
    limits = {}
    for line in path.read_text().splitlines():
        fields = line.split("#")[0].split()
        if fields:
            limits[fields[0]] = float(fields[1])
    return limits


def times_read(path):
    """Processor time in nanoseconds of each benchmark by name; of repetitions the best."""
    unit = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    times = {}
    for run in json.loads(path.read_text())["benchmarks"]:
        if run.get("run_type") == "aggregate" and run.get("aggregate_name") != "best":
            continue
        if "cpu_time" in run:
            name = run.get("run_name", run["name"]) if run.get("aggregate_name") == "best" else run["name"]
            clock = "real_time" if "/manual_time" in name else "cpu_time"
            times[name] = run[clock] * unit[run["time_unit"]]
            if "peak_mb" in run:
                times["Memory of " + name] = run["peak_mb"]
    return times


def text(name, nanoseconds):
    if name.startswith("Memory of "):
        return f"{nanoseconds:.1f} MB"
    for name, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.2f} {name}"
    return f"{nanoseconds:.0f} ns"


def rows(program, times, limits):
    for name, ours in times.items():
        if "_reference" in name:
            continue
        thing, _, arguments = name.partition("_ours")
        label = f"{program}: {thing}{arguments}"
        reference = times.get(f"{thing}_reference{arguments}")
        if reference is None:
            yield label, text(name, ours), "", "", "", ""
            continue
        ratio, limit = ours / reference, limits.get(thing.removeprefix("Memory of "))
        verdict = "" if limit is None else ("ok" if ratio <= limit else "OVER")
        yield label, text(name, ours), text(name, reference), f"{ratio:.2f}", "" if limit is None else f"{limit:g}", verdict


def main():
    limits = limits_read(pathlib.Path(sys.argv[1]))
    table = [("what", "ours", "reference", "ratio", "goal", "")]
    for path in sorted(pathlib.Path(sys.argv[2]).glob("*.json")):
        if not sys.argv[3:] or path.stem in sys.argv[3:]:
            table += rows(path.stem, times_read(path), limits)
    widths = [max(len(row[i]) for row in table) for i in range(6)]
    for row in table:
        print("  ".join([row[0].ljust(widths[0])] + [row[i].rjust(widths[i]) for i in range(1, 6)]).rstrip())


main()
