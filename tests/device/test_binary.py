"""The linked bundle: load commands, symbols, sizes, and nothing of the machine that made it."""

import unittest

import compile as build
import stubs
from built import BINARY, TOP, slices, strings

MH_BUNDLE, MH_TWOLEVEL = 8, 0x80
NAMED_LIBRARIES = {
    "Foundation", "UIKit", "CoreFoundation", "Preferences", "AddressBook", "AddressBookUI", "AudioToolbox",
    "CoreGraphics", "CoreMedia", "Celestial", "CoreTelephony", "libsqlite3.dylib", "libobjc.A.dylib", "libSystem.B.dylib",
}
CPLUSPLUS_RUNTIME = ("__Z", "___cxa", "___gxx", "__ZSt")


class LoadCommands(unittest.TestCase):
    def test_both_architectures_are_there(self) -> None:
        self.assertEqual({found.architecture for found in slices()}, {"arm64", "armv7"})

    def test_each_slice_is_a_bundle_for_8_1(self) -> None:
        for found in slices():
            self.assertEqual(found.file_type, MH_BUNDLE)
            self.assertTrue(found.flags & MH_TWOLEVEL)
            self.assertEqual(found.minimum_version, "8.1")

    def test_each_slice_loads_exactly_the_named_libraries(self) -> None:
        for found in slices():
            self.assertEqual({path.rsplit("/", 1)[-1] for path in found.libraries}, NAMED_LIBRARIES)

    def test_no_slice_is_larger_than_120_kilobytes(self) -> None:
        for found in slices():
            self.assertLessEqual(len(found.data), 120 * 1024, found.architecture)


class Symbols(unittest.TestCase):
    def setUp(self) -> None:
        self.stubs = stubs.read_all(TOP / "platform/ios/stubs")
        self.used = {name for found in slices() for name in found.undefined_symbols}

    def test_every_symbol_used_is_listed_in_a_stub(self) -> None:
        offered = {name for stub in self.stubs for name in stub.symbols}
        self.assertEqual(self.used - offered, set())

    def test_every_symbol_listed_in_a_stub_is_used(self) -> None:
        self.assertEqual({stub.path.stem: stub.unused(self.used) for stub in self.stubs if stub.unused(self.used)}, {})

    def test_each_symbol_is_bound_to_the_library_that_lists_it(self) -> None:
        homes = {name: stub.install_name for stub in self.stubs for name in stub.symbols}
        for found in slices():
            for symbol in (symbol for symbol in found.symbols if symbol.undefined):
                self.assertEqual(found.libraries[symbol.library_ordinal - 1], homes[symbol.name], symbol.name)

    def test_no_symbol_is_of_the_cplusplus_library(self) -> None:
        self.assertEqual([name for name in self.used if name.startswith(CPLUSPLUS_RUNTIME)], [])

    def test_no_exported_symbol_is_left_to_clash(self) -> None:
        for found in slices():
            exported = [symbol.name for symbol in found.symbols if symbol.kind & 0x11 == 0x01 and symbol.kind & 0x0E]
            self.assertEqual([name for name in exported if name != "__mh_bundle_header"], [], found.architecture)


class Texts(unittest.TestCase):
    def test_no_path_of_the_build_machine_is_in_it(self) -> None:
        text = strings(BINARY)
        for path in (str(TOP), "/usr/include", "/usr/lib/llvm", "/home/", "/root/", "/tmp/"):
            self.assertNotIn(path, text)

    def test_no_text_of_the_simulator_is_in_it(self) -> None:
        text = strings(BINARY).lower()
        for word in ("gnustep", "simulator", "httplib", "devicepath", "host::"):
            self.assertNotIn(word, text)


class MissingOldLinker(unittest.TestCase):
    def test_the_sources_are_the_one_list(self) -> None:
        self.assertGreater(len(build.source_files(TOP)), 10)


if __name__ == "__main__":
    unittest.main()
