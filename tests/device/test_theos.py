"""The Theos project names the same files, frameworks, libraries and folders as the build without Theos."""

import re
import unittest

import compile as build
import device
from built import TOP

THEOS = TOP / "packaging/theos"


def variables() -> dict[str, list[str]]:
    text = (THEOS / "Makefile").read_text(encoding="utf-8").replace("\\\n", " ")
    return {name: value.split() for name, value in re.findall(r"^(\w+) :?= (.*)$", text, re.MULTILINE)}


class Theos(unittest.TestCase):
    def test_the_sources_are_the_one_list(self) -> None:
        named = [name.removeprefix("$(ZV_TOP)/") for name in variables()["Zelvora_FILES"]]
        self.assertEqual(named, [str(path.relative_to(TOP)) for path in build.source_files(TOP)])

    def test_the_frameworks_and_libraries_are_those_linked(self) -> None:
        found = variables()
        frameworks = found["Zelvora_FRAMEWORKS"] + found["Zelvora_PRIVATE_FRAMEWORKS"]
        self.assertEqual(sorted(frameworks), sorted(build.FRAMEWORKS))
        implied = ["objc", "System"]  # every program that Theos links has them
        self.assertEqual(sorted(found["Zelvora_LIBRARIES"] + implied), sorted(build.LIBRARIES))

    def test_the_target_and_architectures_are_the_same(self) -> None:
        found = variables()
        self.assertEqual(found["ARCHS"], ["armv7", "arm64"])
        self.assertTrue(found["TARGET"][0].endswith(f":{build.VERSION}"))

    def test_the_folders_are_the_same(self) -> None:
        text = (THEOS / "Makefile").read_text(encoding="utf-8")
        self.assertEqual(variables()["Zelvora_INSTALL_PATH"], ["/" + device.BUNDLE.rsplit("/", 1)[0]])
        self.assertIn(f"$(THEOS_STAGING_DIR)/{device.ENTRY}$(ECHO_END)", text)
        self.assertIn(f"$(THEOS_STAGING_DIR)/{device.PRODUCT} && mkdir -p {' '.join(device.EMPTY_FOLDERS)}$(ECHO_END)", text)

    def test_the_package_is_described_alike(self) -> None:
        self.assertEqual((THEOS / "control").read_text(), (TOP / "packaging/debian/control").read_text())


if __name__ == "__main__":
    unittest.main()
