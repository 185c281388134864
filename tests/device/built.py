"""The device build under test: where it lies, and its parts read back."""

import os
import plistlib
import subprocess
import tarfile
from functools import cache
from io import BytesIO
from pathlib import Path

import macho

TOP = Path(__file__).resolve().parents[2]
OUTPUT = Path(os.environ["ZV_DEVICE"])
ROOT = OUTPUT / "root"
BUNDLE = ROOT / "Library/PreferenceBundles/Zelvora.bundle"
BINARY = BUNDLE / "Zelvora"


@cache
def slices() -> list[macho.Slice]:
    return macho.read_slices(BINARY.read_bytes())


@cache
def package() -> Path:
    (found,) = OUTPUT.glob("*.deb")
    return found


def members(path: Path) -> list[tuple[str, bytes]]:
    """The members of an ar archive, in order."""
    data, at, found = path.read_bytes(), 8, []
    assert data[:8] == b"!<arch>\n"
    while at < len(data):
        name, size = data[at : at + 16].decode().strip(), int(data[at + 48 : at + 58])
        found.append((name, data[at + 60 : at + 60 + size]))
        at += 60 + size + size % 2
    return found


def tar(name: str) -> tarfile.TarFile:
    return tarfile.open(fileobj=BytesIO(dict(members(package()))[name]), mode="r:gz")


def plist(path: Path) -> object:
    return plistlib.loads(path.read_bytes())


def strings(path: Path) -> str:
    """Everything in a file that reads as text of four letters or more."""
    return subprocess.run(["strings", "-a", "-n", "4", path], capture_output=True, text=True, check=True).stdout
