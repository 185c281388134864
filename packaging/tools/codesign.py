"""Signs a Mach-O slice ad hoc: a SHA-1 code directory, the only kind iOS 8 knows, and beside it a SHA-256 one for later systems.

Layout after Apple's published <kern/cs_blobs.h>: a super blob that holds the code directories, an empty set of
requirements and an empty CMS wrapper. All numbers of a signature are big-endian.
"""

from __future__ import annotations

import hashlib
import struct

from macho import LC_CODE_SIGNATURE, LC_SEGMENT, LC_SEGMENT_64, MachOError, Slice, read_slice

SUPER_BLOB, CODE_DIRECTORY, REQUIREMENTS, CMS = 0xFADE0CC0, 0xFADE0C02, 0xFADE0C01, 0xFADE0B01
SLOT_DIRECTORY, SLOT_REQUIREMENTS, SLOT_ALTERNATE, SLOT_CMS = 0, 2, 0x1000, 0x10000
FLAG_ADHOC = 0x2
PAGE_BITS = 12
SPECIAL_SLOTS = 2
HASHES = {1: ("sha1", 20), 2: ("sha256", 32)}


def _blob(magic: int, body: bytes) -> bytes:
    return struct.pack(">II", magic, 8 + len(body)) + body


def _code_directory(code: bytes, identifier: str, kind: int) -> bytes:
    algorithm, size = HASHES[kind]
    page = 1 << PAGE_BITS
    pages = [code[at : at + page] for at in range(0, len(code), page)]
    name = identifier.encode() + b"\0"
    header = 44
    hash_offset = header + len(name) + SPECIAL_SLOTS * size
    requirements = hashlib.new(algorithm, _blob(REQUIREMENTS, struct.pack(">I", 0))).digest()
    special = requirements + bytes(size)  # slots -2 and -1: requirements, and no Info.plist bound
    body = struct.pack(
        ">IIIIIIIBBBBI", 0x20001, FLAG_ADHOC, hash_offset, header, SPECIAL_SLOTS, len(pages), len(code),
        size, kind, 0, PAGE_BITS, 0,
    )
    hashes = b"".join(hashlib.new(algorithm, found).digest() for found in pages)
    return _blob(CODE_DIRECTORY, body + name + special + hashes)


def _super_blob(code: bytes, identifier: str) -> bytes:
    parts = [
        (SLOT_DIRECTORY, _code_directory(code, identifier, 1)),
        (SLOT_REQUIREMENTS, _blob(REQUIREMENTS, struct.pack(">I", 0))),
        (SLOT_ALTERNATE, _code_directory(code, identifier, 2)),
        (SLOT_CMS, _blob(CMS, b"")),
    ]
    at = 12 + 8 * len(parts)
    index = b""
    for slot, blob in parts:
        index += struct.pack(">II", slot, at)
        at += len(blob)
    return _blob(SUPER_BLOB, struct.pack(">I", len(parts)) + index + b"".join(blob for _, blob in parts))


def _add_command(data: bytearray, slice_: Slice, offset: int) -> None:
    """Puts LC_CODE_SIGNATURE behind the last load command; its size is filled in once it is known."""
    header = 32 if slice_.wide else 28
    count, size = struct.unpack_from("<II", data, 16)
    end = header + size
    first = min(section.offset for section in slice_.sections if section.offset)
    if end + 16 > first or any(data[end : end + 16]):
        raise MachOError("no room for a code signature command: link with a larger header pad")
    struct.pack_into("<IIII", data, end, LC_CODE_SIGNATURE, 16, offset, 0)
    struct.pack_into("<II", data, 16, count + 1, size + 16)


def _grow_linkedit(data: bytearray, slice_: Slice, file_end: int) -> None:
    at = 32 if slice_.wide else 28
    for command, body in slice_.commands:
        if command in (LC_SEGMENT, LC_SEGMENT_64) and body[8:24].rstrip(b"\0") == b"__LINKEDIT":
            segment = next(found for found in slice_.segments if found.name == "__LINKEDIT")
            size = file_end - segment.offset
            memory = -(-size // 0x4000) * 0x4000
            layout, where = ("<QQQQ", 24) if slice_.wide else ("<IIII", 24)
            struct.pack_into(layout, data, at + where, segment.address, memory, segment.offset, size)
            return
        at += len(body)
    raise MachOError("no __LINKEDIT segment")


def sign(data: bytes, identifier: str) -> bytes:
    """The slice with an ad hoc signature appended. A slice that is signed already is refused."""
    slice_ = read_slice(data)
    if any(command == LC_CODE_SIGNATURE for command, _ in slice_.commands):
        raise MachOError("signed already")
    code_end = -(-len(data) // 16) * 16
    signed = bytearray(data.ljust(code_end, b"\0"))
    _add_command(signed, slice_, code_end)
    size = -(-len(_super_blob(bytes(signed), identifier)) // 16) * 16
    _grow_linkedit(signed, slice_, code_end + size)
    header = 32 if slice_.wide else 28
    commands = struct.unpack_from("<I", signed, 20)[0]
    struct.pack_into("<I", signed, header + commands - 4, size)
    return bytes(signed) + _super_blob(bytes(signed), identifier).ljust(size, b"\0")
