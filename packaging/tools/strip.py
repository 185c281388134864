"""Takes the local symbols out of a linked Mach-O slice; nothing on the phone looks at them.

Written because llvm-strip 14 lays the segments of a 32-bit slice over each other. Only the end of the file, from the symbol
table on, is made anew; code and data stay where they are. (Layouts: Apple's public <mach-o/loader.h> and <mach-o/nlist.h>.)
"""

from __future__ import annotations

import struct

from macho import LC_DYSYMTAB, LC_SEGMENT, LC_SEGMENT_64, LC_SYMTAB, MachOError, Symbol, read_slice

EXTERNAL = 0x01
LOCAL_INDIRECT = 0xC0000000


def _kept(symbols: list[Symbol]) -> list[int]:
    """Numbers of the symbols that stay: exported ones, then those of other libraries."""
    external = [number for number, symbol in enumerate(symbols) if symbol.kind & EXTERNAL and not symbol.kind & 0xE0]
    return sorted(external, key=lambda number: symbols[number].undefined)


def strip(data: bytes) -> bytes:
    slice_ = read_slice(data)
    at, places = 32 if slice_.wide else 28, {}
    for command, body in slice_.commands:
        is_linkedit = command in (LC_SEGMENT, LC_SEGMENT_64) and body[8:24].rstrip(b"\0") == b"__LINKEDIT"
        places["linkedit" if is_linkedit else command] = at
        at += len(body)
    symbol_table, dynamic = places[LC_SYMTAB], places[LC_DYSYMTAB]
    start, _, strings_end = struct.unpack_from("<III", data, symbol_table + 8)
    table, count = struct.unpack_from("<II", data, dynamic + 56)
    if min(start, table, strings_end) != start or any(
        section.offset + section.size > start for section in slice_.sections if section.offset
    ):
        raise MachOError("the symbol table is not the first of the tables at the end of the file")

    kept = _kept(slice_.symbols)
    renumbered = {old: new for new, old in enumerate(kept)}
    layout = "<IBBHQ" if slice_.wide else "<IBBHI"
    symbols, strings = b"", b" \0"
    for number in kept:
        symbol = slice_.symbols[number]
        symbols += struct.pack(layout, len(strings), symbol.kind, symbol.section, symbol.description, symbol.value)
        strings += symbol.name.encode() + b"\0"
    indirect = struct.unpack_from(f"<{count}I", data, table)
    numbers = [old if old & LOCAL_INDIRECT else renumbered[old] for old in indirect]

    stripped = bytearray(data[:start]) + symbols
    new_table = len(stripped)
    stripped += struct.pack(f"<{count}I", *numbers)
    new_strings = len(stripped)
    stripped += strings.ljust(-(-len(strings) // 8) * 8, b"\0")

    undefined = sum(slice_.symbols[number].undefined for number in kept)
    exported = len(kept) - undefined
    struct.pack_into("<IIII", stripped, symbol_table + 8, start, len(kept), new_strings, len(stripped) - new_strings)
    struct.pack_into("<IIIIII", stripped, dynamic + 8, 0, 0, 0, exported, exported, undefined)
    struct.pack_into("<I", stripped, dynamic + 56, new_table)
    segment = next(found for found in slice_.segments if found.name == "__LINKEDIT")
    size = len(stripped) - segment.offset
    memory = -(-size // 0x4000) * 0x4000
    struct.pack_into("<QQQQ" if slice_.wide else "<IIII", stripped, places["linkedit"] + 24, segment.address, memory,
                     segment.offset, size)
    return bytes(stripped)
