"""Makes what is installed on a phone: the fat, signed bundle, the folders around it and the .deb.

usage: device.py --resources DIR --product DIR --output DIR [--old-linker NAME]
DIR of --resources is the bundle's page resources as the host build lays them out, that of --product what lies below
/Library/Zelvora. SOURCE_DATE_EPOCH stamps the package (default: the time of the last commit).
"""

from __future__ import annotations

import argparse
import os
import plistlib
import shutil
import subprocess
import sys
from pathlib import Path

import codesign
import compile as slices
import deb
import tables

TOP = Path(__file__).resolve().parents[2]
IDENTIFIER = "org.zelvora.settings"
BUNDLE = "Library/PreferenceBundles/Zelvora.bundle"
ENTRY = "Library/PreferenceLoader/Preferences/Zelvora.plist"
PRODUCT = "Library/Zelvora"
# Catalogs that the user or another package fills.
EMPTY_FOLDERS = ("Area", "Table", "T9", "Default")


def binary_plist(source: Path, target: Path) -> None:
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes(plistlib.dumps(plistlib.loads(source.read_bytes()), fmt=plistlib.FMT_BINARY))


def binary_table(source: Path, target: Path) -> None:
    """A string table as a binary property list: the form that every iOS reads and none can mistake."""
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes(plistlib.dumps(tables.read(source), fmt=plistlib.FMT_BINARY))


def install_file(source: Path, target: Path) -> None:
    if source.suffix == ".plist":
        binary_plist(source, target)
    elif source.suffix == ".strings":
        binary_table(source, target)
    else:
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, target)


def install_folder(source: Path, target: Path) -> None:
    for path in sorted(source.rglob("*")):
        if path.is_file() and path.suffix in (".plist", ".strings", ".png"):
            install_file(path, target / path.relative_to(source))


def fat_binary(linked: dict[str, Path], output: Path) -> Path:
    signed = []
    for architecture, path in linked.items():
        signed.append(output / architecture / "Zelvora.signed")
        signed[-1].write_bytes(codesign.sign(path.read_bytes(), IDENTIFIER))
    joined = output / "Zelvora"
    slices.run(slices.tool("llvm-lipo"), "-create", *signed, "-output", joined)
    return joined


def lay_out(root: Path, binary: Path, resources: Path, product: Path) -> None:
    shutil.rmtree(root, ignore_errors=True)
    install_folder(resources, root / BUNDLE)
    shutil.copyfile(binary, root / BUNDLE / "Zelvora")
    (root / BUNDLE / "Zelvora").chmod(0o755)
    install_file(TOP / "packaging/Zelvora.plist", root / ENTRY)
    install_folder(product, root / PRODUCT)
    for name in EMPTY_FOLDERS:
        (root / PRODUCT / name).mkdir(parents=True, exist_ok=True)


def stamp() -> None:
    if "SOURCE_DATE_EPOCH" not in os.environ:
        last = subprocess.run(["git", "log", "-1", "--format=%ct"], cwd=TOP, capture_output=True, text=True, check=False)
        os.environ["SOURCE_DATE_EPOCH"] = last.stdout.strip() or "0"


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ("resources", "product", "output"):
        parser.add_argument(f"--{name}", type=Path, required=True)
    parser.add_argument("--old-linker", default=slices.OLD_LINKER)
    given = parser.parse_args()
    stamp()
    try:
        linked = slices.build_slices(TOP, given.output, given.old_linker)
        lay_out(given.output / "root", fat_binary(linked, given.output), given.resources, given.product)
    except (slices.BuildError, ValueError) as error:
        print(f"zv: {error}", file=sys.stderr)
        return 1
    control = dict(line.split(": ", 1) for line in (TOP / "packaging/debian/control").read_text().splitlines())
    package = given.output / f"{control['Package']}_{control['Version']}_{control['Architecture']}.deb"
    deb.pack(TOP / "packaging/debian", given.output / "root", package)
    print(f"{package} ({', '.join(linked)})")
    return 0


if __name__ == "__main__":
    sys.exit(main())
