"""The check that holds a 32-bit link against its objects: clean on what is shipped, and not blind."""

import re
import shutil
import tempfile
import unittest
from pathlib import Path

import compile as build
import macho
from built import OUTPUT, TOP
from linkcheck import LinkCheck

SOURCE = """
#import <Foundation/Foundation.h>
@protocol Watcher <NSObject>
- (void)seen:(int)count;
@end
@interface PSListController : NSObject {
    id _specifiers;
}
@end
@interface Watched : PSListController <Watcher>
@end
@implementation Watched
- (void)seen:(int)count {
    _specifiers = nil;
}
@end
"""


def only_what_crashes(assembly: str, _: str) -> str:
    """What must go for the old linker to run at all; its silent mistakes stay in."""
    return re.sub(r"^\t\.section\t__DATA,__objc_imageinfo.*\nL_OBJC_IMAGE_INFO:\n(?:\t\.long\t.*\n)+", "", assembly, flags=re.M)


@unittest.skipUnless(shutil.which(build.OLD_LINKER), "the 32-bit linker is not on this machine")
class Link(unittest.TestCase):
    def linked(self, folder: str, avoid) -> LinkCheck:
        source = Path(folder, "Watched.mm")
        source.write_text(SOURCE, encoding="utf-8")
        kept, build.without_old_linker_traps = build.without_old_linker_traps, avoid
        try:
            compiler = build.Compiler(Path(folder), Path(folder, "out"), "armv7")
            compiler.includes += ["-isystem", TOP / "platform/ios/include"]
            compiled = compiler.compile(source)
        finally:
            build.without_old_linker_traps = kept
        output = Path(folder, "linked")
        stubs = sorted((OUTPUT / "armv7/stubs").glob("*.dylib"))
        build.run(
            build.OLD_LINKER, "-arch", "armv7", "-ios_version_min", "8.1", "-sdk_version", "8.1", "-bundle",
            "-undefined", "dynamic_lookup", compiled, *stubs, "-o", output,
        )
        return LinkCheck(macho.read_slice(compiled.read_bytes()), macho.read_slice(output.read_bytes())).run()

    def test_a_link_with_the_traps_avoided_is_clean(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            check = self.linked(folder, build.without_old_linker_traps)
            self.assertGreater(check.checked, 20)
            self.assertEqual(check.faults, [])

    def test_the_linkers_silent_mistakes_are_found(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            self.assertNotEqual(self.linked(folder, only_what_crashes).faults, [])


if __name__ == "__main__":
    unittest.main()
