"""A second build: the same bytes, and without the 32-bit linker a package for arm64 alone that says so."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import macho
from built import OUTPUT, TOP, package


def build(output: str, *options: str) -> subprocess.CompletedProcess:
    command = [sys.executable, "-B", TOP / "packaging/tools/device.py", "--output", output]
    command += ["--resources", OUTPUT / "resources/Zelvora.bundle", "--product", OUTPUT / "resources/product"]
    stamp = package().read_bytes()[24:36].decode().strip()  # of the first member of the archive
    environment = {**os.environ, "SOURCE_DATE_EPOCH": stamp}
    return subprocess.run([*command, *options], capture_output=True, text=True, check=False, env=environment)


class Rebuild(unittest.TestCase):
    def test_in_another_folder_gives_the_same_bytes(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            done = build(folder)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(Path(folder, package().name).read_bytes(), package().read_bytes())

    def test_without_the_old_linker_makes_arm64_alone_and_says_so(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            done = build(folder, "--old-linker", "no-such-linker")
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertIn("no no-such-linker (package lld-13): the bundle is made for arm64 alone", done.stdout)
            binary = Path(folder, "root/Library/PreferenceBundles/Zelvora.bundle/Zelvora")
            self.assertEqual([found.architecture for found in macho.read_slices(binary.read_bytes())], ["arm64"])
            self.assertTrue(list(Path(folder, "armv7").glob("*.o")), "the sources are compiled for armv7 all the same")


if __name__ == "__main__":
    unittest.main()
