#!/usr/bin/python3
"""Prints the results of the benchmarks as tables, draws the chart, and writes the page's table.

usage: report.py TIMES.json INSTRUCTIONS.json CHART.svg PAGE.md

The chart and the page show every family that was timed, beginning with those in which a peer is faster.
"""

import collections
import json
import pathlib
import statistics
import sys

import goals

LIMITS = ("reading", "strlen")
NAMES = {
    "ipv4": "IPv4 address", "mac": "MAC address", "host": "host name", "url": "URL", "email": "e-mail address",
    "account": "account", "date_time": "date-time", "printable": "printable string", "password": "password",
    "number": "number", "own_set_8": "caller's own set of 62, 8 bytes", "own_set_16": "caller's own set of 62, 16 bytes",
    "own_set_32": "caller's own set of 62, 32 bytes", "own_set_64": "caller's own set of 62, 64 bytes",
    "own_digits_8": "caller's own set of 10, 8 bytes", "keyword": "keyword", "rates": "rate list",
    "dns_servers": "DNS servers", "reservations": "DHCP reservations"}
LIBRARIES = ("libcurl", "libyang", "uriparser")  # the other contenders with lower-case names are functions
BEGIN = "<!-- scripts/bench writes this -->\n"
END = "<!-- to here -->\n"
NOISY = 0.10  # if the quartiles are further apart than this share of the median, the medians are not used


def quartiles(samples):
    low, median, high = statistics.quantiles(samples, n=4, method="inclusive")
    return median, (high - low) / median, min(samples)


def read_times(path):
    """read_times returns {family: {shape: {contender: (median ns per value, spread, least, bytes per second,
    allocations)}}}."""
    with open(path, encoding="utf-8") as file:
        rows = [row for row in json.load(file)["benchmarks"] if row["run_type"] == "iteration"]
    samples = collections.defaultdict(list)
    for row in rows:
        samples[row["run_name"]].append(row)
    table = {}
    for name, repetitions in samples.items():
        family, shape, contender = name.split("/")[:3]
        times = [row["cpu_time"] / row["values"] for row in repetitions]
        rate = statistics.median(row["bytes_per_second"] for row in repetitions)
        table.setdefault(family, {}).setdefault(shape, {})[contender] = (
            *quartiles(times), rate, repetitions[0]["allocations"])
    return {family: table[family] for family in sorted(table, key=list(NAMES).index)}


def ratio_to(ours, other):
    """ratio_to returns the other time as a multiple of ours, using the fastest repetitions if the medians are noisy."""
    if max(ours[1], other[1]) <= NOISY:
        return other[0] / ours[0]
    return other[2] / ours[2]


def judged(family, peer, ratio):
    """judged returns a remark on whether the ratio of the peer's time to ours reaches its goal."""
    goal = goals.GOALS.get(family, {}).get(peer)
    shown_goal = str(goal)
    if peer == "libyang":
        goal = shown_goal = goals.LIBYANG
    if peer == "reading" and family in goals.LISTS:
        goal, shown_goal = 1 / goals.LIMIT, f"at most {goals.LIMIT} times it"
    if goal is None:
        return ""
    if ratio >= goal:
        return f"met ({shown_goal})"
    return f"MISSED ({shown_goal}): " + goals.REASONS.get((family, peer), "no reason known")


def print_tables(table, instructions):
    noisy = 0
    for shape in ("valid", "refused_first", "refused_last", "hostile"):
        if not any(shape in shapes for shapes in table.values()):
            continue
        print(f"\n== {shape} values\n")
        print(f"{'family':13}{'contender':13}{'ns/value':>9}{'spread':>8}{'least':>9}{'MB/s':>8}{'alloc':>7}{'instr':>8}"
              f"{'x ours':>8}  goal")
        for family, shapes in table.items():
            if shape not in shapes:
                continue
            row = shapes[shape]
            ours = row["ours"]
            order = ["ours", *LIMITS, *sorted(peer for peer in row if peer != "ours" and peer not in LIMITS)]
            for contender in order:
                time, spread, least, rate, allocations = row[contender]
                ratio = ratio_to(ours, row[contender])
                count = instructions.get(f"{family}/{shape}/{contender}")
                mark = "~" if spread > NOISY else " "
                noisy += spread > NOISY
                goal = judged(family, contender, ratio) if shape == "valid" and contender != "ours" else ""
                print(f"{family if contender == 'ours' else '':13}{contender:13}{time:9.1f}{100 * spread:6.1f}%{mark}{least:9.1f}"
                      f"{rate / 1e6:8.0f}{allocations:7.1f}{count if count is None else round(count)!s:>8}"
                      f"{ratio:8.2f}  {goal}".replace("None", "   -"))
    if noisy:
        print(f"\n~ in {noisy} rows the quartiles are more than {100 * NOISY:.0f} % of the median apart. Their ratios "
              "are those of the fastest repetitions.")


def multiples(row):
    """multiples returns the others' fastest times on valid values, as multiples of ours, in ascending order."""
    least = {contender: figures[2] for contender, figures in row["valid"].items() if contender != "strlen"}
    ours = least.pop("ours")
    return sorted(((contender, time / ours) for contender, time in least.items()), key=lambda pair: pair[1])


def faster(row):
    return [contender for contender, multiple in multiples(row) if multiple < 1 and contender not in LIMITS]


def lost_first(table):
    """lost_first sorts the families so that those in which a peer is faster come first, beginning with the worst."""
    def rank(family):
        peers = faster(table[family])
        return dict(multiples(table[family]))[peers[0]] if peers else 1
    return sorted(table, key=rank)


def draw(table, path):
    """draw draws a group of bars for each family. They show the peers' times on valid values as multiples of ours."""
    longest = 20  # as a multiple of our time; longer bars are cut off
    left, width, step, gap = 190, 460, 15, 14
    lines = []
    y = 62
    for family in lost_first(table):
        lines.append(f'<text x="8" y="{y + 11}" class="f">{family}</text>')
        for peer, multiple in multiples(table[family]):
            length = max(1, min(multiple, longest) / longest * width)
            kind = "l" if peer in LIMITS else "w" if multiple < 1 else "p"
            lines.append(f'<text x="{left - 6}" y="{y + 11}" class="n">{peer}</text>')
            lines.append(f'<rect x="{left}" y="{y + 2}" width="{length:.1f}" height="{step - 4}" class="{kind}"/>')
            lines.append(f'<text x="{left + length + 4:.1f}" y="{y + 11}">{multiple:.1f}</text>')
            y += step
        y += gap
    ours = left + width / longest
    with open(path, "w", encoding="utf-8") as file:
        file.write(
            f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 720 {y}" font-family="sans-serif" font-size="10">\n'
            "<style>text{fill:#333}.f{font-weight:bold}.n{text-anchor:end}.p{fill:#4a7fb5}.w{fill:#c33}.l{fill:#bbb}"
            "</style>\n"
            f'<rect width="720" height="{y}" fill="#fff"/>\n'
            '<text x="8" y="20" font-size="13">Time to accept a value, in multiples of ours (line: ours; grey: only '
            "reading each byte)</text>\n"
            '<text x="8" y="38" font-size="13">Families in which a peer is faster (red) come first</text>\n'
            f'<line x1="{ours:.1f}" y1="52" x2="{ours:.1f}" y2="{y - gap}" stroke="#c33"/>\n'
            + "\n".join(lines) + "\n</svg>\n")


def nanoseconds(time):
    return f"{time:.1f}" if time < 10 else f"{time:.0f}"


def shown(peer):
    return f"`{peer}`" if peer.isidentifier() and peer.islower() and peer not in LIBRARIES else peer


def page_table(table):
    lost = [family for family in table if faster(table[family])]
    lines = [f"In {len(lost)} of {len(table)} families a peer is faster. "
             "These families come first, and the faster peers are in bold.", "",
             "| family | ours | peers | reading each byte |", "|---|---:|---|---:|"]
    for family in lost_first(table):
        row = table[family]["valid"]
        ahead = faster(table[family])
        peers = []
        for peer, _ in multiples(table[family]):
            if peer not in LIMITS:
                figure = f"{shown(peer)} {nanoseconds(row[peer][2])}"
                peers.append(f"**{figure}**" if peer in ahead else figure)
        lines.append(f"| {NAMES[family]} | {nanoseconds(row['ours'][2])} | {', '.join(peers)} | "
                     f"{nanoseconds(row['reading'][2])} |")
    return "\n".join(lines) + "\n"


def write_page(path, text):
    """write_page inserts the text into the page. If the page does not exist, the text becomes the page."""
    if path.exists():
        before, begin, rest = path.read_text(encoding="utf-8").partition(BEGIN)
        _, end, after = rest.partition(END)
        if not end:
            sys.exit(f"{path} has no place for the table")
        text = before + begin + text + end + after
    path.write_text(text, encoding="utf-8")


def main():
    times, counts, chart, page = sys.argv[1:5]
    table = read_times(times)
    with open(counts, encoding="utf-8") as file:
        instructions = json.load(file)
    print_tables(table, instructions)
    accepted = {family: shapes for family, shapes in table.items() if "valid" in shapes}
    if accepted:
        draw(accepted, chart)
        write_page(pathlib.Path(page), page_table(accepted))


if __name__ == "__main__":
    main()
