"""The classes in both slices against their one description, which the bundle on Linux is held against too."""

import json
import re
import unittest

import macho
import objcmeta
from built import TOP, slices

DESCRIPTION = json.loads((TOP / "tests/shape/shape.json").read_text(encoding="utf-8"))
TYPES = {
    "arm64": {"v": "void", "B": "BOOL", "i": "int", "f": "float", "q": "integer", "d": "CGFloat", "Q": "unsigned long long"},
    "armv7": {"v": "void", "c": "BOOL", "i": "int", "f": "float", "Q": "unsigned long long"},
}
# On 32 bits a word and an int are one type, and so are a CGFloat and a float.
NARROW = {"integer": "int", "CGFloat": "float"}
ENCODED = re.compile(r'[rnNoORV]*(\^*(?:\{[^}]*\}|@"[^"]*"|@\?|[a-zA-Z@:#?*]))\d*')
ATTRIBUTES = {"R": "readonly", "&": "retain", "C": "copy", "N": "nonatomic"}


def symbolic(encoding: str, architecture: str) -> str:
    if encoding.startswith("^"):
        return "pointer"
    if encoding == "@":
        return "object"
    if encoding.startswith('@"'):
        name = encoding[2:-1]
        return f"object{name}" if name.startswith("<") else f"object:{name}"
    return TYPES[architecture].get(encoding, f"unknown {encoding}")


def signature(types: str, architecture: str) -> str:
    result, _, _, *arguments = [symbolic(found, architecture) for found in ENCODED.findall(types)]
    return " ".join([result, *arguments])


def expected(symbolic_type: str, architecture: str) -> str:
    if architecture == "arm64":
        return symbolic_type
    return " ".join(NARROW.get(word, word) for word in symbolic_type.split(" ")) if "long" not in symbolic_type else symbolic_type


def attributes(encoded: str) -> list[str]:
    found = []
    for part in encoded.split(",")[1:]:
        if part in ATTRIBUTES:
            found.append(ATTRIBUTES[part])
        elif part.startswith("G"):
            found.append(f"getter={part[1:]}")
        elif part.startswith("S"):
            found.append(f"setter={part[1:]}")
    return sorted(found)


class Shape(unittest.TestCase):
    def each(self):
        for found in slices():
            metadata = objcmeta.Metadata(found)
            for description in DESCRIPTION["classes"]:
                yield found, metadata.classes[description["name"]], description

    def methods(self, found: macho.Slice, methods: list[objcmeta.Method]) -> list[tuple[str, str]]:
        return sorted((method.name, signature(method.types, found.architecture)) for method in methods)

    def described(self, found: macho.Slice, methods: list[list[str]]) -> list[tuple[str, str]]:
        return sorted((name, expected(types, found.architecture)) for name, types in methods)

    def test_the_bundle_has_these_classes_and_no_other(self) -> None:
        for found in slices():
            described = {one["name"] for one in DESCRIPTION["classes"]} | set(DESCRIPTION["helpers"])
            self.assertEqual(set(objcmeta.Metadata(found).classes), described)

    def test_bases(self) -> None:
        for found, cls, description in self.each():
            self.assertEqual(cls.base, description["base"], found.architecture)

    def test_ivars_in_order_with_their_types(self) -> None:
        for found, cls, description in self.each():
            read = [(ivar.name, symbolic(ivar.type, found.architecture)) for ivar in cls.ivars]
            self.assertEqual(read, [(name, expected(kind, found.architecture)) for name, kind in description["ivars"]])
            self.assertEqual([ivar.offset for ivar in cls.ivars], sorted(ivar.offset for ivar in cls.ivars))

    def test_methods_of_class_and_categories_together(self) -> None:
        for found, cls, description in self.each():
            self.assertEqual(self.methods(found, cls.instance_methods), self.described(found, description["methods"]))
            self.assertEqual(self.methods(found, cls.class_methods), self.described(found, description["classMethods"]))

    def test_protocols_adopted(self) -> None:
        for _, cls, description in self.each():
            self.assertEqual(sorted(set(cls.protocols)), sorted(description["protocols"]), cls.name)

    def test_properties_with_their_attributes(self) -> None:
        for _, cls, description in self.each():
            read = {name: attributes(encoded) for name, encoded in cls.properties.items()}
            self.assertEqual(read, {name: sorted(given) for name, given in description["properties"]}, cls.name)

    def test_protocols_with_required_and_optional_methods(self) -> None:
        for found in slices():
            metadata = objcmeta.Metadata(found)
            for description in DESCRIPTION["protocols"]:
                protocol = metadata.protocols[description["name"]]
                self.assertEqual(self.methods(found, protocol.required), self.described(found, description["required"]))
                self.assertEqual(self.methods(found, protocol.optional), self.described(found, description["optional"]))


if __name__ == "__main__":
    unittest.main()
