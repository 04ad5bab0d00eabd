#!/usr/bin/env python3
"""Fails when a manual page shows code that its example does not have, or other lines than it prints.

    page.py PAGE SOURCE PRINTED    # the page, the source of the example, a file with what it printed

Blocks marked "cpp" must stand in the source, whatever their indentation; one marked "text" is all that it prints.
"""
import pathlib
import re
import sys

page, source, printed = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:])


def lines(text):
    return "\n".join(line.strip() for line in text.strip().splitlines())


missing = [block for block in re.findall(r"```cpp\n(.*?)```", page, re.S) if lines(block) not in lines(source)]
if f"```text\n{printed}```" not in page:
    missing.append("this is printed:\n" + printed)
for block in missing:
    print(f"{sys.argv[1]} and {sys.argv[2]} differ: {block}")
sys.exit(bool(missing))
