"""Measures a subject and what it is compared with in turns, so that whatever else the machine does
meets all of them alike."""

import dataclasses
import statistics


@dataclasses.dataclass(frozen=True)
class Result:
    """Medians of the rounds. Ratios are medians of each round's own ratio; the SDK library's time
    is taken off the tool's there."""

    time: float
    user: float
    peak: float
    sdk: float
    floor: float
    ratio: float
    peak_ratio: float
    limit: float  # 0 without one
    limit_ratio: float
    limit_peak_ratio: float
    peers: dict  # name to time


def library_time(costs):
    if len(costs) < 2:
        return 0.0
    everything, nothing = costs
    return everything.time - nothing.time


def median(values):
    return statistics.median(list(values))


def one_round(programs, bench, backwards):
    """The costs of one run of each, in the order of the programs."""
    order = reversed(range(len(programs))) if backwards else range(len(programs))
    costs = {index: programs[index].measure(bench) for index in order}
    return [costs[index] for index in range(len(programs))]


def measure(subject, bench, rounds, *, warm=True):
    below = [subject.floor, subject.limit or subject.floor]
    programs = [subject.tool, *below, *subject.asks]
    if warm:
        one_round(programs, bench, False)
    costs = [one_round(programs, bench, number % 2 == 1) for number in range(rounds)]
    tool, floor, limit = ([each[index] for each in costs] for index in (0, 1, 2))
    sdk = [library_time(each[3:]) for each in costs]

    def time_ratio(others):
        return median((own.time - library) / other.time
                      for own, library, other in zip(tool, sdk, others))

    def peak_ratio(others):
        return median(cost.peak for cost in tool) / median(cost.peak for cost in others)

    return Result(
        time=median(cost.time for cost in tool),
        user=median(cost.user for cost in tool),
        peak=median(cost.peak for cost in tool),
        sdk=median(sdk),
        floor=median(cost.time for cost in floor),
        ratio=time_ratio(floor),
        peak_ratio=peak_ratio(floor),
        limit=median(cost.time for cost in limit) if subject.limit else 0.0,
        limit_ratio=time_ratio(limit),
        limit_peak_ratio=peak_ratio(limit),
        peers={})


def measure_peers(subject, bench, rounds):
    """The time of each peer of the subject."""
    return {name: median(peer.measure(bench).time for _ in range(rounds))
            for name, peer in subject.peers.items()}
