"""The package: form, paths, modes, owners, and that everything in it can be read by the phone."""

import gzip
import os
import plistlib
import re
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

import tables
from built import BUNDLE, ROOT, TOP, members, package, plist, tar

LANGUAGES = ("en", "zh-Hans", "zh-Hant", "ja", "ko", "de", "fr", "es", "ru")


def png_size(path: Path) -> tuple[int, int]:
    data = path.read_bytes()
    assert data[:8] == b"\x89PNG\r\n\x1a\n" and data[12:16] == b"IHDR", path
    return struct.unpack_from(">II", data, 16)


class Form(unittest.TestCase):
    def test_members_stand_in_the_order_and_packing_that_an_old_dpkg_knows(self) -> None:
        found = members(package())
        self.assertEqual([name for name, _ in found], ["debian-binary", "control.tar.gz", "data.tar.gz"])
        self.assertEqual(found[0][1], b"2.0\n")
        for _, data in found[1:]:
            gzip.decompress(data)

    def test_dpkg_reads_it(self) -> None:
        shown = subprocess.run(["dpkg-deb", "--info", package()], capture_output=True, text=True, check=True).stdout
        self.assertIn("Architecture: iphoneos-arm", shown)

    def test_everything_is_owned_by_root_and_wheel_with_plain_modes(self) -> None:
        for name in ("control.tar.gz", "data.tar.gz"):
            for entry in tar(name):
                self.assertEqual((entry.uid, entry.gid, entry.uname, entry.gname), (0, 0, "root", "wheel"), entry.name)
                executable = entry.isdir() or entry.name in ("./postinst", "./postrm") or entry.name.endswith(".bundle/Zelvora")
                self.assertEqual(entry.mode, 0o755 if executable else 0o644, entry.name)

    def test_nothing_lies_outside_the_three_folders(self) -> None:
        allowed = re.compile(r"\.(/Library(/(PreferenceBundles(/Zelvora\.bundle(/.*)?)?"
                             r"|PreferenceLoader(/Preferences(/Zelvora\.plist)?)?|Zelvora(/.*)?))?)?")
        for entry in tar("data.tar.gz"):
            self.assertRegex(entry.name, rf"^{allowed.pattern}$")

    def test_the_catalog_folders_are_there_and_empty(self) -> None:
        for name in ("Area", "Table", "T9"):
            self.assertEqual(list((ROOT / "Library/Zelvora" / name).iterdir()), [])


class Contents(unittest.TestCase):
    def test_every_property_list_and_table_is_binary_and_parses(self) -> None:
        found = [path for path in ROOT.rglob("*") if path.suffix in (".plist", ".strings")]
        self.assertGreater(len(found), 10)
        for path in found:
            self.assertEqual(path.read_bytes()[:8], b"bplist00", path)
            self.assertIsInstance(plist(path), dict, path)

    def test_tables_hold_what_their_sources_hold(self) -> None:
        for path in BUNDLE.rglob("*.strings"):
            self.assertEqual(plist(path), tables.read(TOP / "resources" / path.relative_to(BUNDLE)), path)

    def test_every_language_has_every_table(self) -> None:
        expected = {path.name for path in (BUNDLE / "en.lproj").glob("*.strings")}
        for language in LANGUAGES:
            found = {path.name for path in (BUNDLE / f"{language}.lproj").glob("*.strings")}
            self.assertEqual(found, expected, language)

    def test_images_come_at_three_scales(self) -> None:
        plain = [path for path in ROOT.rglob("*.png") if "@" not in path.name]
        self.assertGreater(len(plain), 5)
        for path in plain:
            width, height = png_size(path)
            for scale in (2, 3):
                larger = path.with_name(f"{path.stem}@{scale}x.png")
                self.assertEqual(png_size(larger), (width * scale, height * scale), larger)

    def test_the_row_icon_is_29_points(self) -> None:
        self.assertEqual(png_size(BUNDLE / "icon.png"), (29, 29))

    def test_info_names_the_executable_and_its_principal_class(self) -> None:
        info = plist(BUNDLE / "Info.plist")
        self.assertEqual(info["CFBundleExecutable"], "Zelvora")
        self.assertEqual(info["NSPrincipalClass"], "ZelvoraSettingsController")
        self.assertEqual(info["MinimumOSVersion"], "8.1")
        self.assertEqual(info["CFBundlePackageType"], "BNDL")
        self.assertEqual(info["CFBundleSupportedPlatforms"], ["iPhoneOS"])
        self.assertEqual(info["UIDeviceFamily"], [1, 2])

    def test_the_entry_opens_the_bundle(self) -> None:
        entry = plist(ROOT / "Library/PreferenceLoader/Preferences/Zelvora.plist")["entry"]
        self.assertEqual((entry["bundle"], entry["isController"]), ("Zelvora", True))
        self.assertEqual(entry["detail"], plist(BUNDLE / "Info.plist")["NSPrincipalClass"])

    def test_default_lists_map_numbers_to_names(self) -> None:
        for path in (ROOT / "Library/Zelvora/Default").glob("*.plist"):
            for number, name in plist(path).items():
                self.assertIsInstance(name, str, f"{path.name}: {number}")

    def test_versions_agree(self) -> None:
        control = (TOP / "packaging/debian/control").read_text(encoding="utf-8")
        version = re.search(r"^Version: (.+)$", control, re.MULTILINE).group(1)
        self.assertEqual(plist(BUNDLE / "Info.plist")["CFBundleShortVersionString"], version)
        project = (TOP / "CMakeLists.txt").read_text(encoding="utf-8")
        self.assertIn(f"VERSION {version} ", project)


class MaintainerScripts(unittest.TestCase):
    def scripts(self) -> dict[str, bytes]:
        with tar("control.tar.gz") as control:
            return {entry.name[2:]: control.extractfile(entry).read() for entry in control if entry.isfile()}

    def test_control_depends_on_the_system_and_the_loader(self) -> None:
        fields = dict(line.split(": ", 1) for line in self.scripts()["control"].decode().splitlines())
        self.assertEqual(fields["Depends"], "firmware (>= 8.1), preferenceloader")
        self.assertEqual(fields["Section"], "Tweaks")
        for name in ("Package", "Name", "Version", "Description", "Maintainer", "Author"):
            self.assertTrue(fields[name], name)

    def run_script(self, name: str, *arguments: str) -> tuple[subprocess.CompletedProcess, list[str], list[str]]:
        """Runs a script with a stand-in killall that notes what it is asked and fails; gives also the user files left."""
        with tempfile.TemporaryDirectory() as folder:
            bin_, home = Path(folder, "bin"), Path(folder, "lists")
            bin_.mkdir()
            home.mkdir()
            (home / "zelvora.black.plist").write_text("kept")
            noted = Path(folder, "noted")
            (bin_ / "killall").write_text(f'#!/bin/sh\necho "$@" >> {noted}\necho noise\nexit 1\n')
            (bin_ / "killall").chmod(0o755)
            script = Path(folder, name)
            script.write_bytes(self.scripts()[name])
            done = subprocess.run(
                ["dash", script, *arguments], capture_output=True, text=True, check=False, cwd=home,
                env={**os.environ, "PATH": f"{bin_}:/usr/bin:/bin"},
            )
            return done, noted.read_text().splitlines() if noted.exists() else [], os.listdir(home)

    def test_they_are_silent_succeed_and_restart_only_settings(self) -> None:
        for name, argument in (("postinst", "configure"), ("postrm", "remove"), ("postrm", "purge"), ("postrm", "upgrade")):
            done, asked, left = self.run_script(name, argument)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""), name)
            self.assertEqual(asked, ["Preferences"], name)
            self.assertEqual(left, ["zelvora.black.plist"], name)

    def test_they_are_posix_and_remove_nothing(self) -> None:
        for name, text in self.scripts().items():
            if name == "control":
                continue
            self.assertTrue(text.startswith(b"#!/bin/sh\n"), name)
            checked = subprocess.run(["shellcheck", "-s", "sh", "-"], input=text, capture_output=True, check=False)
            self.assertEqual(checked.returncode, 0, checked.stdout.decode())
            self.assertNotRegex(text.decode(), r"\b(rm|mv|unlink|find)\b")


if __name__ == "__main__":
    unittest.main()
