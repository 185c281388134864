"""Reads the Objective-C metadata of a Mach-O slice: classes, ivars, methods, protocols, properties.

Written from the layouts in the public documentation of the Objective-C runtime (non-fragile ABI).
A class and its categories are shown as one: the linker may have merged them or not.
"""

from __future__ import annotations

from dataclasses import dataclass, field

from macho import Slice

CLASS_PREFIX = "_OBJC_CLASS_$_"


@dataclass
class Ivar:
    name: str
    type: str
    offset: int
    size: int


@dataclass
class Method:
    name: str
    types: str


@dataclass
class Protocol:
    name: str
    adopts: list[str]
    required: list[Method]
    optional: list[Method]


@dataclass
class Class:
    name: str
    base: str
    ivars: list[Ivar] = field(default_factory=list)
    instance_methods: list[Method] = field(default_factory=list)
    class_methods: list[Method] = field(default_factory=list)
    protocols: list[str] = field(default_factory=list)
    properties: dict[str, str] = field(default_factory=dict)


class Metadata:
    """All classes and protocols of one slice."""

    def __init__(self, slice_: Slice) -> None:
        self._slice = slice_
        self.classes: dict[str, Class] = {}
        self.protocols: dict[str, Protocol] = {}
        for address in self._list("__objc_classlist"):
            self._read_class(address)
        for address in self._list("__objc_catlist"):
            self._read_category(address)
        for address in self._list("__objc_protolist"):
            self._read_protocol(address)

    def _list(self, section_name: str) -> list[int]:
        section = self._slice.section(section_name)
        if section is None:
            return []
        step = self._slice.pointer_size
        return [self._slice.pointer(section.address + at) for at in range(0, section.size, step)]

    def _field(self, address: int, index: int) -> int:
        return self._slice.pointer(address + index * self._slice.pointer_size)

    def _class_name(self, address_of_pointer: int) -> str:
        bound = self._slice.bindings.get(address_of_pointer)
        if bound:
            return bound.removeprefix(CLASS_PREFIX)
        address = self._slice.pointer(address_of_pointer)
        return self._slice.text(self._name_field(self._data(address))) if address else ""

    def _data(self, class_address: int) -> int:
        return self._field(class_address, 4) & ~3

    def _after_sizes(self, data: int) -> int:
        return data + (16 if self._slice.wide else 12)

    def _name_field(self, data: int) -> int:
        return self._field(self._after_sizes(data), 1)

    def _read_class(self, address: int) -> None:
        data = self._data(address)
        rest = self._after_sizes(data)
        name = self._slice.text(self._field(rest, 1))
        read = Class(name, self._class_name(address + self._slice.pointer_size))
        read.instance_methods = self._methods(self._field(rest, 2))
        read.protocols = self._protocol_names(self._field(rest, 3))
        read.ivars = self._ivars(self._field(rest, 4))
        read.properties = self._properties(self._field(rest, 6))
        meta = self._data(self._field(address, 0))
        read.class_methods = self._methods(self._field(self._after_sizes(meta), 2))
        self.classes[name] = read

    def _read_category(self, address: int) -> None:
        extended = self.classes.get(self._class_name(address + self._slice.pointer_size))
        if extended is None:
            return
        extended.instance_methods += self._methods(self._field(address, 2))
        extended.class_methods += self._methods(self._field(address, 3))
        extended.protocols += self._protocol_names(self._field(address, 4))
        extended.properties.update(self._properties(self._field(address, 5)))

    def _read_protocol(self, address: int) -> None:
        name = self._slice.text(self._field(address, 1))
        self.protocols[name] = Protocol(
            name,
            self._protocol_names(self._field(address, 2)),
            self._methods(self._field(address, 3)) + self._methods(self._field(address, 4)),
            self._methods(self._field(address, 5)) + self._methods(self._field(address, 6)),
        )

    def _methods(self, address: int) -> list[Method]:
        return [
            Method(self._slice.text(self._field(entry, 0)), self._slice.text(self._field(entry, 1)))
            for entry in self._entries(address)
        ]

    def _entries(self, address: int) -> list[int]:
        if address == 0:
            return []
        size, count = self._slice.word(address) & ~3, self._slice.word(address + 4)
        return [address + 8 + index * size for index in range(count)]

    def _ivars(self, address: int) -> list[Ivar]:
        read = []
        for entry in self._entries(address):
            after = entry + 3 * self._slice.pointer_size
            offset = self._slice.word(self._field(entry, 0))
            name, kind = self._slice.text(self._field(entry, 1)), self._slice.text(self._field(entry, 2))
            read.append(Ivar(name, kind, offset, self._slice.word(after + 4)))
        return read

    def _properties(self, address: int) -> dict[str, str]:
        return {
            self._slice.text(self._field(entry, 0)): self._slice.text(self._field(entry, 1))
            for entry in self._entries(address)
        }

    def _protocol_names(self, address: int) -> list[str]:
        if address == 0:
            return []
        count = self._slice.pointer(address)
        return [self._slice.text(self._field(self._field(address, 1 + at), 1)) for at in range(count)]
