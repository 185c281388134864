"""Reads .strings tables: "key" = "value"; with comments, in UTF-8 (with or without mark) or UTF-16."""

from __future__ import annotations

import re
from pathlib import Path

_TOKEN = re.compile(r'\s+|/\*.*?\*/|//[^\n]*|("(?:[^"\\]|\\.)*")|([=;])', re.DOTALL)
_ESCAPE = re.compile(r"\\(U[0-9A-Fa-f]{4}|.)", re.DOTALL)
_CONTROL = {"n": "\n", "t": "\t", "r": "\r"}


def _unquote(token: str) -> str:
    def plain(match: re.Match[str]) -> str:
        code = match.group(1)
        return chr(int(code[1:], 16)) if len(code) == 5 else _CONTROL.get(code, code)

    return _ESCAPE.sub(plain, token[1:-1])


def parse(text: str) -> dict[str, str]:
    words, at = [], 0
    while at < len(text):
        found = _TOKEN.match(text, at)
        if found is None:
            raise ValueError(f"cannot read the table at: {text[at:at + 30]!r}")
        if found.group(1) or found.group(2):
            words.append(found.group(0))
        at = found.end()
    if len(words) % 4 or any(words[at + 1] != "=" or words[at + 3] != ";" for at in range(0, len(words), 4)):
        raise ValueError('an entry is not of the form "key" = "value";')
    return {_unquote(words[at]): _unquote(words[at + 2]) for at in range(0, len(words), 4)}


def read(path: Path) -> dict[str, str]:
    data = path.read_bytes()
    encoding = "utf-16" if data[:2] in (b"\xff\xfe", b"\xfe\xff") else "utf-8-sig"
    try:
        return parse(data.decode(encoding))
    except ValueError as error:
        raise ValueError(f"{path}: {error}") from error
