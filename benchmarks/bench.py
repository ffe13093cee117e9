"""Measures the commands of a release build against their floors and prints one table. ./bench
builds and calls it."""

import argparse
import dataclasses
import os
import pathlib
import sys

import report
import smoke
import subjects
from measuring import measure, measure_peers
from workbench import ROOT, Failure, Workbench

ROUNDS = {1: 21, 10: 9, 100: 5}
START_ROUNDS = 101


def arguments():
    parser = argparse.ArgumentParser(prog="./bench", description=__doc__)
    parser.add_argument("--smoke", action="store_true",
                        help="run everything once at scale 1 and compare the outputs")
    parser.add_argument("--scale", type=float, action="append", metavar="N",
                        help="1 is 600 classes and 15,000 parameters (default: 1, 10 and 100)")
    parser.add_argument("--command", choices=subjects.COMMANDS, action="append",
                        help="only this command (default: all)")
    parser.add_argument("--runs", type=int, metavar="N", help="rounds for each row of the table")
    parser.add_argument("--no-peers", action="store_true", help="measure the tool alone")
    parser.add_argument("--cpu", action="store_true",
                        help="compare processor time instead of wall time: for a busy machine")
    parser.add_argument("--seed", type=int, default=1, help="of the documents (default: 1)")
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "release")
    parser.add_argument("--folder", type=pathlib.Path, default=ROOT / "build" / "bench",
                        help="for the documents and outputs")
    return parser.parse_args()


def rounds_of(command, scale, wanted):
    if wanted:
        return wanted
    if command == "start":
        return START_ROUNDS
    return next((rounds for limit, rounds in ROUNDS.items() if scale <= limit), 3)


def commands_at(scale, scales, wanted):
    """All commands at every scale, but the start, which has no size, once."""
    return [command for command in wanted if command != "start" or scale == scales[0]]


def workbench(options, scale):
    return Workbench(options.build, options.folder, scale, seed=options.seed,
                     takes_processor_time=options.cpu)


def measure_row(command, bench, options):
    rounds = rounds_of(command, bench.scale, options.runs)
    subject = subjects.subject(command, bench)
    print(f"{command} at {bench.scale:g}, {rounds} rounds", file=sys.stderr)
    result = measure(subject, bench, rounds)
    if options.no_peers:
        return result
    subject = subjects.with_peers(subject, bench)
    peer_rounds = min(rounds, 1 if bench.scale > 10 else 3)
    return dataclasses.replace(result, peers=measure_peers(subject, bench, peer_rounds))


def warn_of_load():
    load = os.getloadavg()[0]
    if load > 0.5:
        print(f"The machine is busy, with a load of {load:.1f}: expect noise.", file=sys.stderr)


def measure_table(options):
    warn_of_load()
    scales = sorted(options.scale or ROUNDS)
    wanted = options.command or subjects.COMMANDS
    results = {}
    for scale in scales:
        bench = workbench(options, scale)
        bench.make_documents(combined=bool({"genh", "genm"} & set(wanted)))
        for command in commands_at(scale, scales, wanted):
            results[command, scale] = measure_row(command, bench, options)
    print(report.table(results, "CPU" if options.cpu else "wall"))


def main():
    options = arguments()
    try:
        if options.smoke:
            smoke.run(workbench(options, 1), with_peers=not options.no_peers)
        else:
            measure_table(options)
    except Failure as failure:
        sys.exit(str(failure))


if __name__ == "__main__":
    main()
