"""Compiles and links the bundle for one architecture of the phone, with Debian's LLVM and no SDK.

arm64 goes through the current linker. armv7 needs the old one of lld 13 and two detours: it reads no text-based
stubs, so they are assembled into dylibs, and it neither survives the Objective-C image-info section nor resolves
references to weak definitions, so both are taken out of the assembly (see without_old_linker_traps).
"""

from __future__ import annotations

import os
import re
import shutil
import struct
import subprocess
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import stubs
from linkcheck import LinkCheck
from macho import read_slice
from strip import strip

VERSION = "8.1"
OLD_LINKER = "ld64.lld.darwinold-13"
LIBRARIES = ("objc", "sqlite3", "System")
# The platform libraries the product is linked against. CoreMedia, Celestial and CoreTelephony lend no symbol.
FRAMEWORKS = (
    "Foundation", "CoreFoundation", "CoreGraphics", "UIKit", "Preferences", "AddressBook", "AddressBookUI",
    "AudioToolbox", "CoreMedia", "Celestial", "CoreTelephony",
)
# No exception leaves or crosses the code, so none of it is made for unwinding, which would take the C++ library's
# runtime; only a file that guards something by @try is.
FLAGS = (
    "-std=c++20 -fvisibility=hidden -fobjc-runtime=ios-8.1 -fblocks -ffreestanding -nostdinc -nostdinc++ -fno-rtti "
    "-fno-cxx-exceptions -fno-threadsafe-statics -fno-stack-protector -fno-addrsig "
    "-Wall -Wextra -Werror -Wshadow -Wno-unused-parameter"
).split()
CATEGORIES, DISGUISED_CATEGORIES = "__objc_catlist", "__zv_categories"
# The smaller on arm64 saves one of its large pages; on armv7 it would call out for every division.
OPTIMIZATION = {"arm64": "-Oz", "armv7": "-Os"}
GUARDED, UNGUARDED = ["-fobjc-exceptions"], ["-fno-objc-exceptions", "-fno-exceptions"]


class BuildError(Exception):
    """A step failed; the message is what a person needs to see."""


def run(*command: object) -> str:
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise BuildError(f"{' '.join(str(word) for word in command)}\n{done.stdout}{done.stderr}")
    return done.stdout


def tool(name: str) -> str:
    """An LLVM tool by the name that Debian gives it, with or without a version."""
    found = next((path for path in map(shutil.which, (name, f"{name}-14")) if path), None)
    if found is None:
        raise BuildError(f"no {name}: install the packages lld and llvm")
    return found


def source_files(top: Path) -> list[Path]:
    """The bundle's sources as the one list in cmake/BundleSources.cmake gives them."""
    text = (top / "cmake/BundleSources.cmake").read_text(encoding="utf-8")
    names = re.findall(r"^\s+([\w/+.-]+\.(?:mm|cpp))\s*$", text, re.MULTILINE)
    return [top / name for name in names]


def without_old_linker_traps(assembly: str, unit: str) -> str:
    """The assembly without what the old linker mishandles (found by linkcheck, which holds every link against this).

    The image-info section is dropped and added again at the link; the list of categories goes through the link under
    another name. Weak definitions are made private: they are
    protocol descriptions and inline functions, of which each file keeps a copy. Pointers to other libraries' symbols
    are plain data, since those of a pointer section stay unbound. `unit` makes the private names differ between files.
    """
    assembly = re.sub(
        r"^\t\.section\t__DATA,__objc_imageinfo.*\nL_OBJC_IMAGE_INFO:\n(?:\t\.long\t.*\n)+", "", assembly, flags=re.MULTILINE
    )
    assembly = re.sub(rf"__DATA,{CATEGORIES},.*", f"__DATA,{DISGUISED_CATEGORIES},regular,no_dead_strip", assembly)
    assembly = assembly.replace("__DATA,__nl_symbol_ptr,non_lazy_symbol_pointers", "__DATA,__data")
    assembly = re.sub(r"^\t\.indirect_symbol\t(\S+)\n\t\.long\t0$", r"\t.long\t\1", assembly, flags=re.MULTILINE)
    assembly = re.sub(r"\bL(_\S+?)\$non_lazy_ptr", rf"l\1$pointer${unit}", assembly)
    assembly = re.sub(r"\b(GCC_except_table\d+)\b", rf"\1${unit}", assembly)
    weak = set(re.findall(r"^\t\.weak_def(?:inition|_can_be_hidden)\t(\S+)", assembly, re.MULTILINE))
    kept = []
    for line in assembly.splitlines():
        word = line.split()
        directive = word[0] if word else ""
        is_export = directive in (".globl", ".private_extern", ".weak_definition", ".weak_def_can_be_hidden")
        if not (is_export and word[1] in weak):
            kept.append(line)
    text = "\n".join(kept) + "\n"
    for name in sorted(weak, key=len, reverse=True):
        own = f'{name[:-1]}${unit}"' if name.endswith('"') else f"{name}${unit}"
        text = re.sub(rf"(?<![\w$.]){re.escape(name)}(?![\w$.])", lambda _, own=own: own, text)
    return text


class Compiler:
    """One architecture's compiler calls."""

    def __init__(self, top: Path, output: Path, architecture: str) -> None:
        self.top, self.output, self.architecture = top, output / architecture, architecture
        self.output.mkdir(parents=True, exist_ok=True)
        self.clang = shutil.which("clang++") or "clang++"
        builtin = Path(run(self.clang, "-print-resource-dir").strip()) / "include"
        self.target = ["-target", f"{architecture}-apple-ios{VERSION}"]
        if architecture == "armv7":
            self.target.append("-marm")  # the old linker's islands between Thumb and ARM code are wrong
        self.includes = ["-I", top, "-isystem", top / "platform/ios/include", "-I", top / "platform/include"]
        self.includes += ["-isystem", self._sqlite_header(), "-isystem", builtin]

    def _sqlite_header(self) -> Path:
        """SQLite's public header alone, without the rest of the machine's include folder."""
        folder = self.output / "include"
        folder.mkdir(exist_ok=True)
        shutil.copyfile("/usr/include/sqlite3.h", folder / "sqlite3.h")
        return folder

    def compile(self, source: Path) -> Path:
        compiled = self.output / (str(source.relative_to(self.top)).replace("/", "-") + ".o")
        flags = [*self.target, OPTIMIZATION[self.architecture], *FLAGS, *self.includes, f"-ffile-prefix-map={self.top}=."]
        if source.suffix == ".mm":
            flags += GUARDED if "@try" in source.read_text(encoding="utf-8") else UNGUARDED
        if self.architecture == "arm64":
            run(self.clang, *flags, "-c", source, "-o", compiled)
            return compiled
        assembly = compiled.with_suffix(".s")
        run(self.clang, *flags, "-S", source, "-o", assembly)
        unit = re.sub(r"\W", "_", source.stem)
        assembly.write_text(without_old_linker_traps(assembly.read_text(encoding="utf-8"), unit), encoding="utf-8")
        run(self.clang, *self.target, "-c", assembly, "-o", compiled)
        return compiled

    def compile_all(self, sources: list[Path]) -> list[Path]:
        with ThreadPoolExecutor(os.cpu_count() or 1) as pool:
            return list(pool.map(self.compile, sources))


# Nothing of the slice is ever encrypted: without room for that, code begins on the headers' page, a large one saved.
def link_arm64(top: Path, objects: list[Path], output: Path) -> None:
    folder = top / "platform/ios/stubs"
    libraries = [word for name in FRAMEWORKS for word in ("-framework", name)] + [f"-l{name}" for name in LIBRARIES]
    run(
        tool("ld64.lld"), "-arch", "arm64", "-platform_version", "ios", VERSION, VERSION, "-bundle", "-dead_strip", "-headerpad", "0x100", "-no_encryption",
        "-no_adhoc_codesign", f"-F{folder}", f"-L{folder}", *objects, *libraries, "-o", output,
    )


def _stub_dylibs(top: Path, folder: Path, linker: str) -> list[Path]:
    made = []
    for stub in stubs.read_all(top / "platform/ios/stubs"):
        assembly, compiled = folder / f"{stub.path.stem}.s", folder / f"{stub.path.stem}.o"
        assembly.write_text(stubs.assembly(stub), encoding="utf-8")
        run("clang", "-target", f"armv7-apple-ios{VERSION}", "-c", assembly, "-o", compiled)
        made.append(folder / f"{stub.path.stem}.dylib")
        run(
            linker, "-arch", "armv7", "-ios_version_min", VERSION, "-sdk_version", VERSION, "-dylib",
            "-undefined", "dynamic_lookup",
            "-install_name", stub.install_name, compiled, "-o", made[-1],
        )
    return made


def link_armv7(top: Path, objects: list[Path], output: Path, linker: str) -> None:
    folder = output.parent / "stubs"
    folder.mkdir(exist_ok=True)
    image_info = folder / "image-info"
    image_info.write_bytes(struct.pack("<II", 0, 0x40))
    # On one processor: with several threads it does not always put the atoms in the same order.
    run(
        "taskset", "-c", min(os.sched_getaffinity(0)),
        linker, "-arch", "armv7", "-ios_version_min", VERSION, "-sdk_version", VERSION, "-bundle",
        *objects, *_stub_dylibs(top, folder, linker), "-sectcreate", "__DATA", "__objc_imageinfo", image_info, "-o", output,
    )
    output.write_bytes(output.read_bytes().replace(_name(DISGUISED_CATEGORIES), _name(CATEGORIES)))
    check_link(objects, output)


def _name(section: str) -> bytes:
    """A section's name as a section header holds it, segment and all."""
    return section.encode().ljust(16, b"\0") + b"__DATA".ljust(16, b"\0")


def check_link(objects: list[Path], output: Path) -> int:
    """Holds the linked file against its objects; gives the number of references compared."""
    linked, compared = read_slice(output.read_bytes()), 0
    for path in objects:
        check = LinkCheck(read_slice(path.read_bytes()), linked).run()
        if check.faults:
            raise BuildError("the old linker went wrong:\n" + "\n".join(check.faults[:20]))
        compared += check.checked
    return compared


def build_slices(top: Path, output: Path, old_linker: str = OLD_LINKER) -> dict[str, Path]:
    """Architecture to linked, unsigned file. Without the old linker the sources are still compiled for armv7."""
    slices = {}
    sources = source_files(top)
    for architecture in ("arm64", "armv7"):
        objects = Compiler(top, output, architecture).compile_all(sources)
        linked = output / architecture / "Zelvora"
        found = shutil.which(old_linker)
        if architecture == "arm64":
            link_arm64(top, objects, linked)
        elif found:
            link_armv7(top, objects, linked, found)
        else:
            print(f"zv: no {old_linker} (package lld-13): the bundle is made for arm64 alone")
            continue
        linked.write_bytes(strip(linked.read_bytes()))
        slices[architecture] = linked
    return slices
