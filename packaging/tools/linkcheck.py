"""Holds a linked 32-bit slice against the object files it was made of: every place that a relocation names must point
in the linked file to what it pointed to in the object.

The old 32-bit linker is no longer kept, and it was seen to resolve references to weak definitions to the wrong place
without a word. So its work is checked, pointer by pointer and branch by branch, by an independent reading of the
published ARM relocation kinds (<mach-o/arm/reloc.h>).

What a place points to is put in words that hold in both files: the name of an imported or defined symbol and the
distance from it, or, for what has no name in the linked file, its contents.
"""

from __future__ import annotations

import struct
from bisect import bisect_right
from collections import Counter
from dataclasses import dataclass

from macho import Section, Slice, Symbol

SECTDIFF, LOCAL_SECTDIFF, BRANCH, HALF, HALF_SECTDIFF = 2, 3, 5, 8, 9
SCATTERED = 0x80000000
TEXTS = ("__cstring", "__objc_methname", "__objc_classname", "__objc_methtype")
REFERENCES = ("__objc_selrefs", "__objc_classrefs", "__objc_superrefs", "__objc_protorefs", "__nl_symbol_ptr",
              "__la_symbol_ptr")


@dataclass
class Relocation:
    address: int
    kind: int
    symbol: Symbol | None
    target: int = 0
    origin: int = 0
    low_half: bool = False
    other_half: int = 0


class View:
    """A file with its symbols at hand by place and by name."""

    def __init__(self, slice_: Slice) -> None:
        self.slice = slice_
        defined = [symbol for symbol in slice_.symbols if symbol.kind & 0x0E == 0x0E and not symbol.kind & 0xE0]
        counts = Counter(symbol.name for symbol in defined)
        self.by_name = {symbol.name: symbol for symbol in defined if counts[symbol.name] == 1}
        self.places = sorted((symbol.value, symbol.name) for symbol in defined)

    def section_at(self, address: int) -> Section | None:
        return next((found for found in self.slice.sections if found.address <= address < found.address + found.size), None)

    def symbol_before(self, address: int, known: set[str]) -> tuple[str, int] | None:
        """The last symbol of the same section at or before the address that `known` holds too."""
        section = self.section_at(address)
        at = bisect_right(self.places, (address, "\U0010ffff")) - 1
        while section and at >= 0 and self.places[at][0] >= section.address:
            place, name = self.places[at]
            if name in known:
                return name, address - place
            at -= 1
        return None


def relocations(view: View) -> list[Relocation]:
    found = []
    for section in view.slice.sections:
        entries = [
            struct.unpack_from("<II", view.slice.data, section.relocations + 8 * index)
            for index in range(section.relocation_count)
        ]
        at = 0
        while at < len(entries):
            relocation, used = _one(view, section, entries, at)
            found.append(relocation)
            at += used
    return found


def _one(view: View, section: Section, entries: list[tuple[int, int]], at: int) -> tuple[Relocation, int]:
    first, second = entries[at]
    if first & SCATTERED:
        kind, length = first >> 24 & 0xF, first >> 28 & 0x3
        relocation = Relocation(section.address + (first & 0xFFFFFF), kind, None, target=second)
        if kind in (SECTDIFF, LOCAL_SECTDIFF, HALF_SECTDIFF):
            pair = entries[at + 1]
            relocation.origin, relocation.low_half, relocation.other_half = pair[1], not length & 1, pair[0] & 0xFFFF
            return relocation, 2
        return relocation, 1
    kind, external, number = second >> 28, second >> 27 & 1, second & 0xFFFFFF
    symbol = view.slice.symbols[number] if external else None
    relocation = Relocation(section.address + first, kind, symbol)
    if kind in (HALF, HALF_SECTDIFF):
        relocation.low_half, relocation.other_half = not (second >> 25) & 1, entries[at + 1][0] & 0xFFFF
        return relocation, 2
    return relocation, 1


def branch_target(slice_: Slice, address: int) -> int:
    """Where an ARM B or BL at the address goes."""
    offset = slice_.word(address) & 0xFFFFFF
    return address + 8 + 4 * (offset - (offset >> 23 << 24))


def half(slice_: Slice, address: int) -> int:
    """The 16-bit number that an ARM MOVW or MOVT at the address loads."""
    instruction = slice_.word(address)
    return instruction >> 4 & 0xF000 | instruction & 0xFFF


class LinkCheck:
    """One object file against the linked slice."""

    def __init__(self, object_: Slice, linked: Slice) -> None:
        self.object, self.linked = View(object_), View(linked)
        self.common = set(self.object.by_name) & set(self.linked.by_name)
        self.elsewhere = {
            symbol.value: name for name, symbol in self.linked.by_name.items() if name not in self.object.by_name
        }
        self.checked = 0
        self.faults: list[str] = []

    def run(self) -> LinkCheck:
        for relocation in relocations(self.object):
            place = self.object.symbol_before(relocation.address, self.common)
            if place is None:
                continue  # without a name of its own it is compared where something points to it
            there = self.linked.by_name[place[0]].value + place[1]
            expected, found = self._expected(relocation), self._found(relocation, there)
            self.checked += 1
            if expected != found:
                self.faults.append(f"{place[0]}+{place[1]}: {expected} became {found}")
        return self

    def _expected(self, relocation: Relocation) -> object:
        slice_ = self.object.slice
        if relocation.symbol is not None:
            undefined, name = relocation.symbol.undefined, relocation.symbol.name
            return ("import", name) if undefined else self._words(self.object, relocation.symbol.value)
        if relocation.kind == BRANCH:
            return self._words(self.object, branch_target(slice_, relocation.address))
        if relocation.kind == HALF_SECTDIFF:
            return self._words(self.object, relocation.target)
        if relocation.kind in (SECTDIFF, LOCAL_SECTDIFF):
            return self._words(self.object, relocation.target)
        return self._words(self.object, slice_.word(relocation.address))

    def _found(self, relocation: Relocation, there: int) -> object:
        slice_ = self.linked.slice
        if relocation.kind == BRANCH:
            return self._words(self.linked, branch_target(slice_, there))
        if relocation.kind == HALF_SECTDIFF:
            return self._words(self.linked, self._half_target(relocation, there))
        if relocation.kind in (SECTDIFF, LOCAL_SECTDIFF):
            difference = slice_.word(there) - self.object.slice.word(relocation.address)
            return self._words(self.linked, self._shifted(relocation, there, difference))
        if there in slice_.bindings:
            return "import", slice_.bindings[there]
        return self._words(self.linked, slice_.word(there))

    def _shifted(self, relocation: Relocation, there: int, difference: int) -> int:
        """The linked target of an in-place difference: the origin moved with its function."""
        origin = there - relocation.address + relocation.origin
        return (origin + relocation.target - relocation.origin + difference) & 0xFFFFFFFF

    def _half_target(self, relocation: Relocation, there: int) -> int:
        """Joins the half in the instruction with what the other half must be, and adds the moved origin."""
        origin = there - relocation.address + relocation.origin
        old = half(self.object.slice, relocation.address)
        whole_before = (relocation.other_half << 16 | old) if relocation.low_half else (old << 16 | relocation.other_half)
        addend = (whole_before - (relocation.target - relocation.origin)) & 0xFFFFFFFF
        new, shift = half(self.linked.slice, there), 0 if relocation.low_half else 16
        for target in self._candidates(relocation.target):
            whole = (target - origin + addend) & 0xFFFFFFFF
            if whole >> shift & 0xFFFF == new:
                return target
        return 0xFFFFFFFF

    def _candidates(self, target: int) -> list[int]:
        """The addresses of the linked file that mean what `target` means in the object."""
        words = self._words(self.object, target)
        named = self.object.symbol_before(target, self.common)
        if named:
            return [self.linked.by_name[named[0]].value + named[1]]
        section = self.object.section_at(target)
        return [
            address
            for other in self.linked.slice.sections
            if section and other.name == section.name
            for address in self._starts(other)
            if self._words(self.linked, address) == words
        ]

    def _starts(self, section: Section) -> list[int]:
        if section.name not in TEXTS:
            return list(range(section.address, section.address + section.size, 4))
        data = self.linked.slice.data[section.offset : section.offset + section.size]
        return [section.address] + [section.address + at + 1 for at, byte in enumerate(data[:-1]) if byte == 0]

    def _words(self, view: View, address: int, depth: int = 0) -> object:
        section = view.section_at(address & ~1) or view.section_at(address)
        if section is None:
            return "nowhere", 0 if address == 0 else address
        if view is self.linked and address in self.elsewhere:
            return "import", self.elsewhere[address]
        named = view.symbol_before(address, self.common)
        if named:
            return "symbol", named[0], named[1] & ~1 if section.name == "__text" else named[1]
        if section.name in ("__stubs", "__picsymbolstub4", "__stub_helper", "__symbolstub1"):
            return "import", self._stub_import(view, section, address)
        if section.name in TEXTS:
            return "text", view.slice.text(address)
        if section.name in REFERENCES and depth < 3:
            return "pointer to", self._pointee(view, address, depth)
        if section.name == "__cfstring" and depth < 3:
            length = view.slice.word(address + 12)
            return "string", length, self._contents(view, view.slice.word(address + 8), length, view.slice.word(address + 4))
        if address in view.slice.bindings:
            return "pointer to", ("import", view.slice.bindings[address])
        if section.name == "__ustring":
            return "wide text", view.slice.data[view.slice.at(address) : view.slice.at(address) + 8]
        if section.name == "__objc_const" and depth < 3 and self._is_pointer(view, address):
            return "in", section.name, self._words(view, view.slice.word(address), depth + 1)
        return "in", section.name, view.slice.data[view.slice.at(address) : view.slice.at(address) + 8]

    def _contents(self, view: View, address: int, length: int, flags: int) -> bytes:
        size = length * (2 if flags & 0x10 else 1)
        start = view.slice.at(address)
        return view.slice.data[start : start + size]

    def _pointee(self, view: View, address: int, depth: int) -> object:
        if address in view.slice.bindings:
            return "import", view.slice.bindings[address]
        relocation = self._relocation_at(view, address)
        if relocation is not None and relocation.symbol is not None and relocation.symbol.undefined:
            return "import", relocation.symbol.name
        indirect = view.slice.indirect.get(address)
        if indirect is not None and indirect.undefined:
            return "import", indirect.name
        if indirect is not None and indirect.name in self.common:
            return "symbol", indirect.name, 0
        return self._words(view, view.slice.word(address), depth + 1)

    def _is_pointer(self, view: View, address: int) -> bool:
        """By its relocation in an object; a linked file has none, but there no small number is an address."""
        if view is self.object:
            return self._relocation_at(view, address) is not None
        return view.section_at(view.slice.word(address)) is not None

    def _relocation_at(self, view: View, address: int) -> Relocation | None:
        if not hasattr(view, "at"):
            view.at = {found.address: found for found in relocations(view)} if view is self.object else {}
        return view.at.get(address)

    def _stub_import(self, view: View, section: Section, address: int) -> str:
        symbol = view.slice.indirect.get(address)
        return symbol.name if symbol else "?"
