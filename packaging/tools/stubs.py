"""Reads the link stubs of platform/ios/stubs (text-based dylib stubs, version 4) and turns one into assembly.

The current linker reads the stubs themselves; the old 32-bit one wants a dylib, which is assembled from the same lists.
Only what these files use is read: one document, lists in brackets.
"""

from __future__ import annotations

import re
from dataclasses import dataclass, field
from pathlib import Path

LISTS = ("symbols", "objc-classes", "objc-ivars", "objc-eh-types")


@dataclass
class Stub:
    path: Path
    install_name: str
    lists: dict[str, list[str]] = field(default_factory=dict)

    @property
    def symbols(self) -> list[str]:
        """Every symbol that the stub offers, as the linker sees it."""
        names = list(self.lists["symbols"])
        for name in self.lists["objc-classes"]:
            names += [f"_OBJC_CLASS_$_{name}", f"_OBJC_METACLASS_$_{name}"]
        names += [f"_OBJC_IVAR_$_{name}" for name in self.lists["objc-ivars"]]
        return names + [f"_OBJC_EHTYPE_$_{name}" for name in self.lists["objc-eh-types"]]

    def unused(self, used: set[str]) -> list[str]:
        """What the stub lists and nobody refers to; a class counts as used when it or its metaclass is."""
        idle = [name for name in self.lists["symbols"] if name not in used and name != "dyld_stub_binder"]
        for name in self.lists["objc-classes"]:
            if not {f"_OBJC_CLASS_$_{name}", f"_OBJC_METACLASS_$_{name}"} & used:
                idle.append(name)
        idle += [name for name in self.lists["objc-ivars"] if f"_OBJC_IVAR_$_{name}" not in used]
        idle += [name for name in self.lists["objc-eh-types"] if f"_OBJC_EHTYPE_$_{name}" not in used]
        return idle


def read(path: Path) -> Stub:
    text = path.read_text(encoding="utf-8")
    install_name = re.search(r"^install-name:\s*'([^']+)'", text, re.MULTILINE)
    if install_name is None:
        raise ValueError(f"{path}: no install name")
    stub = Stub(path, install_name.group(1))
    for name in LISTS:
        found = re.search(rf"^\s*{name}:\s*\[([^\]]*)\]", text, re.MULTILINE)
        stub.lists[name] = [item.strip() for item in found.group(1).split(",") if item.strip()] if found else []
    return stub


def read_all(folder: Path) -> list[Stub]:
    return [read(path) for path in sorted(folder.rglob("*.tbd"))]


def assembly(stub: Stub) -> str:
    """A dylib's source that defines each symbol as a word of data."""
    lines = [".data"]
    for symbol in stub.symbols or ["_zv_stub_without_symbols"]:
        lines += [f'.globl "{symbol}"', f'"{symbol}": .long 0']
    return "\n".join(lines) + "\n"
