"""Figures, the table of them, and the ratios that are kept from one run to the next."""
from __future__ import annotations

import os
import statistics
from dataclasses import dataclass, field
from pathlib import Path

REGRESSION = 1.10
FEW = 20  # samples, of which the worst but one in twenty would be the worst


@dataclass
class Figure:
    """What was measured again and again: the median stands for it."""

    samples: list[float] = field(default_factory=list)

    def add(self, sample: float | None) -> None:
        if sample is not None:
            self.samples.append(sample)

    @property
    def median(self) -> float:
        return statistics.median(self.samples)

    def part(self, share: float) -> float:
        """The value that this share of the samples stays under."""
        ordered = sorted(self.samples)
        return ordered[min(int(share * len(ordered)), len(ordered) - 1)]


@dataclass
class Row:
    """One figure of the tutor beside its peer and its limit, all of the same run."""

    name: str
    unit: str
    ours: Figure
    goal: str = ""
    peer_name: str = ""
    peer: Figure | None = None
    limit_name: str = ""
    limit: Figure | None = None

    @property
    def ratio(self) -> float | None:
        """Ours to the limit, or to the peer where there is no limit."""
        for other in (self.limit, self.peer):
            if other is not None and other.samples and other.median > 0:
                return self.ours.median / other.median
        return None


def shown(value: float) -> str:
    if value >= 1000:
        return f"{value:,.0f}"
    return f"{value:.3g}" if value < 100 else f"{value:.0f}"


def shown_figure(figure: Figure | None) -> str:
    if figure is None or not figure.samples:
        return "-"
    if len(figure.samples) < FEW:
        return shown(figure.median)
    return f"{shown(figure.median)} ({shown(figure.part(0.95))})"


def named(name: str, figure: Figure | None) -> str:
    return "-" if figure is None or not figure.samples else f"{name} {shown_figure(figure)}"


class Ratios:
    """The ratios of an earlier run, in a file of lines "NAME<tab>RATIO"."""

    def __init__(self, path: Path) -> None:
        self.path = path
        self.kept: dict[str, float] = {}
        if path.exists():
            for line in path.read_text().splitlines():
                if line and not line.startswith("#"):
                    name, ratio = line.split("\t")
                    self.kept[name] = float(ratio)

    def keep(self, rows: list[Row]) -> None:
        """Puts the ratios of the rows in the place of their earlier ones."""
        for row in rows:
            if row.ratio is not None:
                self.kept[row.name] = row.ratio
        lines = ["# Ours to the limit or the peer of the same run; written by bench/run --keep."]
        lines += [f"{name}\t{ratio:.3f}" for name, ratio in sorted(self.kept.items())]
        self.path.write_text("\n".join(lines) + "\n")

    def is_worse(self, row: Row) -> bool:
        return (
            row.ratio is not None
            and row.name in self.kept
            and row.ratio > REGRESSION * self.kept[row.name]
        )


def print_table(rows: list[Row], ratios: Ratios) -> None:
    """The median, and behind it the value that 19 of 20 stay under."""
    print("| figure | ours | peer | limit | ratio | kept | goal |")
    print("|---|---|---|---|---|---|---|")
    for row in rows:
        ratio = "-" if row.ratio is None else f"{row.ratio:.2f}"
        kept = f"{ratios.kept[row.name]:.2f}" if row.name in ratios.kept else "-"
        print(
            f"| {row.name}, {row.unit} | {shown_figure(row.ours)} | {named(row.peer_name, row.peer)} "
            f"| {named(row.limit_name, row.limit)} | {ratio} | {kept} | {row.goal} |"
        )


def warn(rows: list[Row], ratios: Ratios) -> int:
    """Tells of every row that got worse by more than a tenth, and returns how many did."""
    worse = [row for row in rows if ratios.is_worse(row)]
    for row in worse:
        text = f"{row.name}: ratio {row.ratio:.2f}, it was {ratios.kept[row.name]:.2f}"
        print(f"::warning title=Slower::{text}" if os.environ.get("GITHUB_ACTIONS") else f"slower: {text}")
    return len(worse)
