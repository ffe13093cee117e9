"""The table that ./bench prints."""

import subjects

HEADINGS = ("command", "S", "{time} ms", "user ms", "peak MB", "SDK ms", "floor ms", "ratio", "bar",
            "peak/floor", "bar", "limit ms", "ratio", "peak/limit", "growth: time", "peak", "bar",
            "peers, times slower")


def milliseconds(seconds):
    return f"{seconds * 1e3:.1f}"


def judged(value, bar, *, at_least=False):
    """The value, marked when it misses the bar."""
    missed = bar is not None and (value < bar if at_least else value > bar)
    return f"{value:.2f}{' !' if missed else ''}"


def text_of_bar(bar, sign="<="):
    return "" if bar is None else f"{sign} {bar:g}"


def bar_of(bars, command, scale):
    holds = command == "start" or scale >= subjects.BARS_FROM_SCALE
    return bars.get(command) if holds else None


def limit_cells(result, command, scale):
    if not result.limit:
        return ["", "", ""]
    return [milliseconds(result.limit),
            judged(result.limit_ratio, bar_of(subjects.LIMIT_TIME_BARS, command, scale)),
            judged(result.limit_peak_ratio, bar_of(subjects.LIMIT_PEAK_BARS, command, scale))]


def peers_text(result):
    own = result.time - result.sdk  # peers ask no SDK
    texts = [f"{name} {judged(time / own, subjects.PEER_BAR, at_least=True)}"
             for name, time in result.peers.items()]
    return ", ".join(texts)


def growth_cells(result, smaller, factor):
    """The growth against the scale before, to be held to a bar that is for ten times as much."""
    if smaller is None:
        return ["", "", ""]
    bar = subjects.GROWTH_BAR if factor == 10 else None
    return [judged(result.time / smaller.time, bar), judged(result.peak / smaller.peak, bar),
            text_of_bar(bar)]


def row(command, scale, results):
    result = results[command, scale]
    bar = bar_of(subjects.TIME_BARS, command, scale)
    peak_bar = bar_of(subjects.PEAK_BARS, command, scale)
    before = [each for name, each in results if name == command and each < scale]
    smaller = max(before, default=None)
    growth = growth_cells(result, results.get((command, smaller)),
                          None if smaller is None else scale / smaller)
    return [command, f"{scale:g}", milliseconds(result.time), milliseconds(result.user),
            f"{result.peak / 1e6:.1f}", milliseconds(result.sdk) if result.sdk else "",
            milliseconds(result.floor), judged(result.ratio, bar), text_of_bar(bar),
            judged(result.peak_ratio, peak_bar), text_of_bar(peak_bar),
            *limit_cells(result, command, scale), *growth, peers_text(result)]


def table(results, time):
    """Markdown, with columns as wide as their cells; a "!" stands behind what misses its bar. The
    time is that of the results, "wall" or "CPU"."""
    order = sorted(results, key=lambda key: (subjects.COMMANDS.index(key[0]), key[1]))
    rows = [[each.format(time=time) for each in HEADINGS],
            *(row(*key, results) for key in order)]
    widths = [max(len(each[column]) for each in rows) for column in range(len(HEADINGS))]

    def line(cells):
        padded = [cell.ljust(width) if column in (0, len(cells) - 1) else cell.rjust(width)
                  for column, (cell, width) in enumerate(zip(cells, widths))]
        return "| " + " | ".join(padded) + " |"

    rule = line(["-" * width for width in widths])
    return "\n".join([line(rows[0]), rule, *map(line, rows[1:])])
