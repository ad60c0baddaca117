"""Hardware labels: five texts for each selection of a page, and the writing of them."""

from __future__ import annotations

from dataclasses import dataclass, field

from derivation.document import Document, JsonObject
from derivation.dut import Hardware

FE_ROUTE, PORT, STX, ANT_MASK, MIMO_PAIR = range(5)
NOT_FOUND = ("Not found",) * 5
NOTHING = ("",) * 5

# Message of a failed table, and of a failed default, by label.
MESSAGES = (
    ("Update HW Setting FE Route# failed", "Update HW Setting FE Route# default value failed"),
    ("Update HW Setting port failed", "Update HW Setting port default value failed"),
    ("Update HW Setting stx failed", "Update HW Setting stx default value failedd"),
    ("Update HW Setting antMask failed", "Update HW Setting antMask default value failed"),
    ("Update HW Setting mimoPair failed", "Update HW Setting mimoPair default value failed"),
)

Texts = tuple[str, ...]


def label_texts(hardware: Hardware, path: int = 0) -> Texts:
    """Of a TX region or an RX route; an RX route has two ports, and of type 2 two SRX numbers."""
    return (
        str(hardware.fe_route),
        ", ".join(hardware.ports),
        str(hardware.paths[path]),
        f"0x{hardware.ant_mask:x}",
        "".join(f"{number} " for number in hardware.mimo_pairs),
    )


@dataclass
class LabelTables:
    """Texts by selection key, for one set of five labels."""

    tables: list[JsonObject] = field(default_factory=lambda: [{} for _ in range(5)])
    defaults: Texts = NOTHING
    has_defaults: bool = False

    def add(self, key: str, texts: Texts) -> None:
        for table, text in zip(self.tables, texts):
            table[key] = text

    def add_found(self, key: str, texts: Texts) -> None:
        """As add; the first of these is the default of the labels."""
        self.add(key, texts)
        if not self.has_defaults:
            self.defaults = texts
            self.has_defaults = True

    def write(self, doc: Document, members: list[str], with_defaults: bool = True) -> None:
        """Members in the order of the labels, as many as the page has."""
        for label, member in enumerate(members):
            table_failed, default_failed = MESSAGES[label]
            doc.write([f"{member}.trait.valuePair"], self.tables[label], table_failed)
            if with_defaults:
                doc.write([f"{member}.trait.defaultValue"], self.defaults[label], default_failed)
