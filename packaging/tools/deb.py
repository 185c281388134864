"""Packs a folder as a .deb that an old dpkg reads, the same bytes every time.

Members in the order debian-binary, control.tar.gz, data.tar.gz; gzip without a time stamp; entries sorted, owned by
root:wheel (0:0), stamped with SOURCE_DATE_EPOCH. (deb(5), ar(5) and the POSIX ustar format.)
"""

from __future__ import annotations

import gzip
import io
import os
import stat
import tarfile
from pathlib import Path


def _entry(path: Path, name: str, when: int) -> tarfile.TarInfo:
    entry = tarfile.TarInfo(name)
    entry.mtime = when
    entry.uid = entry.gid = 0
    entry.uname, entry.gname = "root", "wheel"
    if path.is_dir():
        entry.type, entry.mode = tarfile.DIRTYPE, 0o755
    else:
        entry.size = path.stat().st_size
        entry.mode = 0o755 if path.stat().st_mode & stat.S_IXUSR else 0o644
    return entry


def pack_tar(folder: Path, when: int) -> bytes:
    """The folder's contents as a gzipped tar, names beginning with "./"."""
    plain = io.BytesIO()
    with tarfile.open(fileobj=plain, mode="w", format=tarfile.GNU_FORMAT) as tar:
        for path in [folder, *sorted(folder.rglob("*"))]:
            relative = path.relative_to(folder).as_posix()
            entry = _entry(path, "./" if relative == "." else f"./{relative}", when)
            if path.is_dir():
                tar.addfile(entry)
            else:
                with path.open("rb") as contents:
                    tar.addfile(entry, contents)
    packed = io.BytesIO()
    with gzip.GzipFile(fileobj=packed, mode="wb", compresslevel=9, mtime=0) as zipped:
        zipped.write(plain.getvalue())
    return packed.getvalue()


def _member(name: str, contents: bytes, when: int) -> bytes:
    header = f"{name:<16}{when:<12}{0:<6}{0:<6}{'100644':<8}{len(contents):<10}`\n".encode()
    return header + contents + (b"\n" if len(contents) % 2 else b"")


def pack(control: Path, root: Path, output: Path) -> None:
    when = int(os.environ["SOURCE_DATE_EPOCH"])
    output.write_bytes(
        b"!<arch>\n"
        + _member("debian-binary", b"2.0\n", when)
        + _member("control.tar.gz", pack_tar(control, when), when)
        + _member("data.tar.gz", pack_tar(root, when), when)
    )
