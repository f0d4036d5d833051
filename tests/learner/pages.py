"""What the pages of the documentation show: their indented blocks and their tables."""

import re
import textwrap


def blocks_of(part):
    """The indented stretches of a part, without their indent."""
    indented = re.findall(r"(?:^(?:    .*)?\n)+", part, re.M)
    return [textwrap.dedent(block).strip("\n") for block in indented if block.strip()]


def part_of(page, heading):
    """What stands below a heading of any rank, up to the next of its rank or a higher one."""
    rank, _, behind = re.search(rf"^(#+) ({re.escape(heading)}.*)\n([\s\S]*)", page, re.M).groups()
    return re.split(rf"^#{{1,{len(rank)}}} ", behind, flags=re.M)[0]


def rows_of(part):
    """The rows of each table of a part, without their first: a list of cells a row."""
    tables = re.findall(r"^\|.*\n\|[-|]+\n((?:\|.*\n)+)", part, re.M)
    return [[[cell.strip() for cell in re.split(r"(?<!\\)\|", line)[1:-1]]
             for line in table.splitlines()] for table in tables]
