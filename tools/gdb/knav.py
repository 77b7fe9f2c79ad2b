"""Shows the library's opaque types in gdb: `source tools/gdb/knav.py`."""

import struct

import gdb
import gdb.printing

MOST_ELEMENTS = 32
SHOWN_BYTES = 12


def elements(address):
    """The payloads of an item identifier list, as far as it can be read."""
    memory = gdb.selected_inferior()
    while True:
        try:
            (size,) = struct.unpack("<H", memory.read_memory(address, 2).tobytes())
            if size == 0:
                return
            yield memory.read_memory(address + 2, max(size - 2, 0)).tobytes()
        except gdb.MemoryError:
            yield None
            return
        address += size


def readable(payload):
    """An extension root element as its text, any other one as its first bytes."""
    if payload is None:
        return "unreadable"
    if payload.startswith("Extension-".encode("utf-16-le")):
        return '"%s"' % payload.decode("utf-16-le", "replace").rstrip("\0")
    more = " ..." if len(payload) > SHOWN_BYTES else ""
    return "%d: %s%s" % (len(payload) + 2, payload[:SHOWN_BYTES].hex(" "), more)


def describe_list(address):
    if address == 0:
        return "no list"
    shown = []
    for payload in elements(address):
        if len(shown) == MOST_ELEMENTS:
            shown.append("...")
            break
        shown.append("[%s]" % readable(payload))
    return " ".join(shown) if shown else "the desktop (empty list)"


class ItemIdList:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return describe_list(int(self.value.address))


class ItemList:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        # The owner holds one pointer and nothing else.
        pointer = gdb.lookup_type("unsigned long long").pointer()
        return describe_list(int(self.value.address.cast(pointer).dereference()))


class NavNode:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        node_type = self.value["m_type"]
        return "%s %s" % (node_type, describe_list(int(self.value["m_id"])))

    def children(self):
        for field in ("m_extensionName", "m_folder", "m_parent", "m_child", "m_next", "m_displayNode"):
            yield field, self.value[field]


def register():
    printers = gdb.printing.RegexpCollectionPrettyPrinter("knav")
    printers.add_printer("item id list", "^(_?ITEMIDLIST(_RELATIVE|_ABSOLUTE)?|ITEMID_CHILD)$", ItemIdList)
    printers.add_printer("owned item id list", "^knav::ItemList$", ItemList)
    printers.add_printer("node", "^CNavNode$", NavNode)
    gdb.printing.register_pretty_printer(gdb.current_objfile(), printers, replace=True)


register()
