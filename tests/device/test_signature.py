"""The ad hoc signature of each slice, read independently of the code that wrote it: each page is hashed again."""

import hashlib
import struct
import unittest

import macho
from built import slices

SHA1, SHA256 = 1, 2
ALGORITHMS = {SHA1: hashlib.sha1, SHA256: hashlib.sha256}


def signature(found: macho.Slice) -> tuple[int, bytes]:
    """Where the signature begins, and its bytes."""
    for command, body in found.commands:
        if command == macho.LC_CODE_SIGNATURE:
            offset, size = struct.unpack_from("<II", body, 8)
            return offset, found.data[offset : offset + size]
    raise AssertionError(f"{found.architecture}: not signed")


def blobs(data: bytes) -> dict[int, bytes]:
    magic, length, count = struct.unpack_from(">III", data)
    assert magic == 0xFADE0CC0 and length <= len(data)
    found = {}
    for at in range(count):
        slot, offset = struct.unpack_from(">II", data, 12 + 8 * at)
        size = struct.unpack_from(">I", data, offset + 4)[0]
        found[slot] = data[offset : offset + size]
    return found


class Directory:
    def __init__(self, blob: bytes) -> None:
        (
            self.magic, _, self.version, self.flags, self.hash_offset, self.name_offset, self.special, self.count,
            self.limit, self.size, self.kind, _, self.page_bits,
        ) = struct.unpack_from(">IIIIIIIIIBBBB", blob)
        self.name = blob[self.name_offset : blob.index(b"\0", self.name_offset)].decode()
        self.hashes = [blob[at : at + self.size] for at in range(self.hash_offset, len(blob), self.size)]
        start = self.hash_offset - self.special * self.size
        self.special_hashes = [blob[at : at + self.size] for at in range(start, self.hash_offset, self.size)]


class AdHocSignature(unittest.TestCase):
    def directories(self, found: macho.Slice) -> list[Directory]:
        held = blobs(signature(found)[1])
        return [Directory(held[0]), Directory(held[0x1000])]

    def test_the_first_directory_is_sha1_and_the_alternate_sha256(self) -> None:
        for found in slices():
            first, second = self.directories(found)
            self.assertEqual((first.magic, first.kind, first.size), (0xFADE0C02, SHA1, 20))
            self.assertEqual((second.magic, second.kind, second.size), (0xFADE0C02, SHA256, 32))

    def test_it_is_ad_hoc_and_names_the_bundle(self) -> None:
        for found in slices():
            for directory in self.directories(found):
                self.assertEqual(directory.flags, 2)
                self.assertEqual(directory.name, "org.zelvora.settings")

    def test_every_page_up_to_the_signature_has_its_hash(self) -> None:
        for found in slices():
            start, _ = signature(found)
            for directory in self.directories(found):
                page = 1 << directory.page_bits
                self.assertEqual(directory.limit, start)
                self.assertEqual(directory.count, -(-start // page))
                expected = [
                    ALGORITHMS[directory.kind](found.data[at : min(at + page, start)]).digest() for at in range(0, start, page)
                ]
                self.assertEqual(directory.hashes, expected)

    def test_the_requirements_are_empty_and_hashed(self) -> None:
        for found in slices():
            requirements = blobs(signature(found)[1])[2]
            self.assertEqual(requirements, bytes.fromhex("fade0c01 0000000c 00000000"))
            for directory in self.directories(found):
                self.assertEqual(directory.special_hashes[0], ALGORITHMS[directory.kind](requirements).digest())

    def test_the_signature_ends_the_file_and_the_last_segment(self) -> None:
        for found in slices():
            start, data = signature(found)
            linkedit = next(segment for segment in found.segments if segment.name == "__LINKEDIT")
            self.assertEqual(start + len(data), len(found.data))
            self.assertEqual(linkedit.offset + linkedit.file_size, len(found.data))
            self.assertEqual(start % 16, 0)


if __name__ == "__main__":
    unittest.main()
