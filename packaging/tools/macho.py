"""Reads Mach-O files: fat headers, load commands, sections, symbols and the binding of pointers to other libraries' symbols.

Written from the layouts in Apple's public <mach-o/loader.h>, <mach-o/fat.h> and <mach-o/nlist.h>
documentation. Only what the phone's bundle contains is read: MH_BUNDLE files with classic (opcode)
binding information.
"""

from __future__ import annotations

import struct
from dataclasses import dataclass, field

FAT_MAGIC = 0xCAFEBABE
MAGIC_32, MAGIC_64 = 0xFEEDFACE, 0xFEEDFACF
CPU_NAMES = {(12, 9): "armv7", (0x0100000C, 0): "arm64"}

LC_SEGMENT, LC_SEGMENT_64, LC_SYMTAB, LC_DYSYMTAB = 0x1, 0x19, 0x2, 0xB
# Section types whose entries stand for symbols of the indirect table.
INDIRECT_TYPES = (0x6, 0x7, 0x8)
SYMBOL_STUBS = 0x8
LC_LOAD_DYLIB, LC_DYLD_INFO_ONLY, LC_CODE_SIGNATURE = 0xC, 0x80000022, 0x1D
LC_VERSION_MIN_IPHONEOS, LC_RPATH = 0x25, 0x8000001C


class MachOError(Exception):
    """The bytes are not a Mach-O file of the kind that is read here."""


@dataclass
class Section:
    segment: str
    name: str
    address: int
    size: int
    offset: int
    relocations: int = 0
    relocation_count: int = 0
    flags: int = 0
    first_indirect: int = 0
    stub_size: int = 0


@dataclass
class Segment:
    name: str
    address: int
    size: int
    offset: int
    file_size: int


@dataclass
class Symbol:
    name: str
    value: int
    kind: int
    section: int
    description: int

    @property
    def undefined(self) -> bool:
        return self.kind & 0x0E == 0 and self.kind & 0x01 != 0

    @property
    def library_ordinal(self) -> int:
        return (self.description >> 8) & 0xFF


@dataclass
class Slice:
    """One architecture's file, offsets counted from its own start."""

    data: bytes
    architecture: str = ""
    wide: bool = False
    file_type: int = 0
    flags: int = 0
    commands: list[tuple[int, bytes]] = field(default_factory=list)
    segments: list[Segment] = field(default_factory=list)
    sections: list[Section] = field(default_factory=list)
    symbols: list[Symbol] = field(default_factory=list)
    libraries: list[str] = field(default_factory=list)
    bindings: dict[int, str] = field(default_factory=dict)
    indirect: dict[int, Symbol] = field(default_factory=dict)

    def section(self, name: str) -> Section | None:
        return next((found for found in self.sections if found.name == name), None)

    def at(self, address: int) -> int:
        """The file offset of an address."""
        for segment in self.segments:
            if segment.address <= address < segment.address + segment.file_size:
                return address - segment.address + segment.offset
        raise MachOError(f"address {address:#x} is in no segment")

    def pointer(self, address: int) -> int:
        return struct.unpack_from("<Q" if self.wide else "<I", self.data, self.at(address))[0]

    def word(self, address: int) -> int:
        return struct.unpack_from("<I", self.data, self.at(address))[0]

    def text(self, address: int) -> str:
        start = self.at(address)
        return self.data[start : self.data.index(b"\0", start)].decode("utf-8")

    @property
    def pointer_size(self) -> int:
        return 8 if self.wide else 4

    @property
    def minimum_version(self) -> str:
        for command, body in self.commands:
            if command == LC_VERSION_MIN_IPHONEOS:
                version = struct.unpack_from("<I", body, 8)[0]
                return f"{version >> 16}.{version >> 8 & 0xFF}"
        return ""

    @property
    def undefined_symbols(self) -> list[str]:
        return sorted(symbol.name for symbol in self.symbols if symbol.undefined)


def _uleb(data: bytes, at: int) -> tuple[int, int]:
    value = shift = 0
    while True:
        byte = data[at]
        at += 1
        value |= (byte & 0x7F) << shift
        shift += 7
        if not byte & 0x80:
            return value, at


def _bindings(slice_: Slice, start: int, size: int) -> dict[int, str]:
    """Address to symbol name, from one stream of bind opcodes."""
    found: dict[int, str] = {}
    at, end, mask = start, start + size, (1 << (8 * slice_.pointer_size)) - 1
    name, address = "", 0
    while at < end:
        opcode, immediate = slice_.data[at] & 0xF0, slice_.data[at] & 0x0F
        at += 1
        if opcode == 0x20:  # set ordinal
            _, at = _uleb(slice_.data, at)
        elif opcode == 0x40:  # set symbol name
            stop = slice_.data.index(b"\0", at)
            name, at = slice_.data[at:stop].decode(), stop + 1
        elif opcode == 0x60:  # set addend
            _, at = _uleb(slice_.data, at)
        elif opcode == 0x70:  # set segment and offset
            offset, at = _uleb(slice_.data, at)
            address = slice_.segments[immediate].address + offset
        elif opcode == 0x80:  # add to the address
            step, at = _uleb(slice_.data, at)
            address = (address + step) & mask
        elif opcode in (0x90, 0xA0, 0xB0):  # bind, and step on
            found[address] = name
            address += slice_.pointer_size
            if opcode == 0xA0:
                step, at = _uleb(slice_.data, at)
                address = (address + step) & mask
            elif opcode == 0xB0:
                address += immediate * slice_.pointer_size
        elif opcode == 0xC0:  # bind several times with a gap
            count, at = _uleb(slice_.data, at)
            skip, at = _uleb(slice_.data, at)
            for _ in range(count):
                found[address] = name
                address = (address + slice_.pointer_size + skip) & mask
    return found


def _read_segment(slice_: Slice, body: bytes) -> None:
    layout = "<16sQQQQiiII" if slice_.wide else "<16sIIIIiiII"
    name, address, size, offset, file_size, _, _, sections, _ = struct.unpack_from(layout, body, 8)
    slice_.segments.append(Segment(_name(name), address, size, offset, file_size))
    section = "<16s16sQQIIIIIIII" if slice_.wide else "<16s16sIIIIIIIII"
    at = 8 + struct.calcsize(layout)
    for _ in range(sections):
        title, segment, address, size, offset, _, *rest = struct.unpack_from(section, body, at)
        slice_.sections.append(Section(_name(segment), _name(title), address, size, offset, *rest[:5]))
        at += struct.calcsize(section)


def _read_symbols(slice_: Slice, body: bytes) -> None:
    offset, count, strings, _ = struct.unpack_from("<IIII", body, 8)
    layout = "<IBBHQ" if slice_.wide else "<IBBHI"
    for index in range(count):
        at = offset + index * struct.calcsize(layout)
        string, kind, section, description, value = struct.unpack_from(layout, slice_.data, at)
        start = strings + string
        name = slice_.data[start : slice_.data.index(b"\0", start)].decode()
        slice_.symbols.append(Symbol(name, value, kind, section, description))


def _read_indirect(slice_: Slice, body: bytes) -> None:
    """Address of a stub or pointer to the symbol it stands for; local ones stand for none."""
    table, count = struct.unpack_from("<II", body, 56)
    numbers = struct.unpack_from(f"<{count}I", slice_.data, table)
    for section in slice_.sections:
        if section.flags & 0xFF not in INDIRECT_TYPES:
            continue
        step = section.stub_size if section.flags & 0xFF == SYMBOL_STUBS else slice_.pointer_size
        for index in range(section.size // step):
            number = numbers[section.first_indirect + index]
            if number < len(slice_.symbols):
                slice_.indirect[section.address + index * step] = slice_.symbols[number]


def _name(padded: bytes) -> str:
    return padded.rstrip(b"\0").decode()


def read_slice(data: bytes) -> Slice:
    magic, cpu, subtype, file_type, count, _, flags = struct.unpack_from("<IIIIIII", data)
    if magic not in (MAGIC_32, MAGIC_64):
        raise MachOError("not a Mach-O file")
    wide = magic == MAGIC_64
    architecture = CPU_NAMES.get((cpu, subtype & 0xFFFFFF), f"{cpu}/{subtype}")
    slice_ = Slice(data, architecture, wide, file_type, flags)
    at = 32 if wide else 28
    for _ in range(count):
        command, size = struct.unpack_from("<II", data, at)
        slice_.commands.append((command, data[at : at + size]))
        at += size
    for command, body in slice_.commands:
        if command in (LC_SEGMENT, LC_SEGMENT_64):
            _read_segment(slice_, body)
        elif command == LC_SYMTAB:
            _read_symbols(slice_, body)
        elif command == LC_LOAD_DYLIB:
            slice_.libraries.append(_name(body[struct.unpack_from("<I", body, 8)[0] :]))
    for command, body in slice_.commands:
        if command == LC_DYSYMTAB:
            _read_indirect(slice_, body)
        elif command == LC_DYLD_INFO_ONLY:
            numbers = struct.unpack_from("<10I", body, 8)
            for start, size in (numbers[2:4], numbers[4:6], numbers[6:8]):
                slice_.bindings.update(_bindings(slice_, start, size))
    return slice_


def read_slices(data: bytes) -> list[Slice]:
    """The slices of a fat file, or the only one of a thin file."""
    if len(data) < 28:
        raise MachOError("too short for a Mach-O file")
    magic, count = struct.unpack_from(">II", data)
    if magic != FAT_MAGIC:
        return [read_slice(data)]
    slices = []
    for index in range(count):
        _, _, offset, size, _ = struct.unpack_from(">IIIII", data, 8 + 20 * index)
        slices.append(read_slice(data[offset : offset + size]))
    return slices
