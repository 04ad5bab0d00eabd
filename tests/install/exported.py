#!/usr/bin/env python3
"""Fails when an installed header declares a function or object that the shared library keeps to itself.

    exported.py HEADERS STATIC SHARED    # folder of the installed headers; both libraries of one build

What the static library has and the shared one does not is looked for in the headers: members of their classes
by class and name, all else by a declaration at the beginning of a line.
"""
import pathlib
import re
import subprocess
import sys

headers, static, shared = sys.argv[1:]


def symbols(*arguments):
    printed = subprocess.run(["nm", "-C", "--defined-only", *arguments], check=True, capture_output=True, text=True)
    return set(re.findall(r"^[0-9a-f]+ [TBDR] (.*)$", printed.stdout, re.M))


def declares(text, symbol):
    *scopes, name = symbol.split("(")[0].replace("[abi:cxx11]", "").split("::")
    if name not in text:
        return None
    word = re.escape(name)
    if scopes and re.search(rf"\b(?:class|struct) (?:VORMANT_API )?{re.escape(scopes[-1])}\b[^;(){{}}]*{{", text):
        return re.search(rf"{word}\(", text)
    if scopes and not re.search(rf"^namespace [\w:]*\b{re.escape(scopes[-1])} {{", text, re.M):
        return None
    return re.search(rf"^(?!//|using )(?:[^\s(=][^(=\n]*[\s&*])?{word}(?:\(|;)", text, re.M)


kept = sorted(symbols("-g", static) - symbols("-D", shared))
failures = 0
for header in sorted(pathlib.Path(headers).rglob("*.h")):
    text = re.sub(r"//.*", "", header.read_text(encoding="utf-8"))
    for symbol in kept:
        if declares(text, symbol):
            print(f"{header.relative_to(headers)}: {symbol} is not exported; mark it with VORMANT_API")
            failures += 1
sys.exit(failures > 0)
