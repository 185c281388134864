"""Each header names what it uses: a file that includes nothing else compiles, on Linux and for the phone."""

import json
import os
import shlex
import subprocess
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from tempfile import TemporaryDirectory

import compile as device

TOP = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["ZV_BUILD"])
FRAMEWORKS = TOP / "platform/include"
HOST = TOP / "platform/host"


def headers(folder: Path) -> list[Path]:
    return sorted(path.relative_to(folder) for path in folder.rglob("*.h"))


def host_command() -> list[str]:
    """What the platform itself is compiled with, without the file."""
    for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        if entry["file"].endswith("platform/host/UIKit/UIView.mm"):
            words = shlex.split(entry["command"])
            return words[: words.index("-o")]
    raise AssertionError("the platform is not in the compile commands")


def complaint(command: list[object], header: Path) -> str:
    """What the compiler says of a file with nothing but the header; empty when it is content."""
    words = [str(word) for word in command] + ["-x", "objective-c++", "-fsyntax-only", "-"]
    done = subprocess.run(words, input=f"#import <{header}>\n", capture_output=True, text=True, check=False)
    return f"{header}:\n{done.stderr}" if done.returncode else ""


class Headers(unittest.TestCase):
    def check(self, command: list[object], found: list[Path]) -> None:
        self.assertTrue(found)
        with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
            complaints = [text for text in pool.map(lambda header: complaint(command, header), found) if text]
        self.assertEqual(complaints, [], "\n".join(complaints))

    def test_the_frameworks_on_linux(self) -> None:
        self.check(host_command(), headers(FRAMEWORKS))

    def test_the_hosts_own(self) -> None:
        self.check(host_command(), headers(HOST))

    def test_the_frameworks_for_the_phone(self) -> None:
        with TemporaryDirectory() as folder:
            compiler = device.Compiler(TOP, Path(folder), "arm64")
            command = [compiler.clang, *compiler.target, *device.FLAGS, *device.UNGUARDED, *compiler.includes]
            self.check(command, headers(FRAMEWORKS))

    def test_a_header_that_leans_on_another_is_found(self) -> None:
        with TemporaryDirectory() as folder:
            (Path(folder) / "Leaning.h").write_text("NSString *nameOf(int32_t number);\n", encoding="utf-8")
            self.assertIn("int32_t", complaint([*host_command(), "-I", folder], Path("Leaning.h")))


if __name__ == "__main__":
    unittest.main()
