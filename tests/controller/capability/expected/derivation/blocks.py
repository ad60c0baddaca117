"""Resource block members: SCS, bandwidths, and where a transmission may lie within them."""

from __future__ import annotations

from derivation.bands import first_of
from derivation.document import Document, JsonObject
from derivation.dut import Band
from derivation.reference import Reference

RB_COUNTS = (
    135, 107, 31, 18, 273, 217, 162, 78, 65, 51, 38, 24, 11, 270, 216, 160, 133, 106, 79, 52, 25,
)


def vrb_starts() -> JsonObject:
    return {f"{rb} RB": {"min": 0, "max": rb - 1, "value": 0} for rb in RB_COUNTS}


def vrb_lengths() -> JsonObject:
    return {f"{rb} RB": {"min": 1, "max": rb, "value": 1} for rb in RB_COUNTS}


def slot_enables(reference: Reference, bands: list[Band]) -> JsonObject:
    return {band.name: int(reference.is_tdd(band.name)) for band in bands}


def by_carrier_count(enables: JsonObject) -> JsonObject:
    """For the second carrier of a page: with one carrier its members are disabled."""
    keyed: JsonObject = {}
    for band, enable in enables.items():
        keyed[f"1,{band}"] = 0
        keyed[f"2,{band}"] = enable
    return keyed


class BlockLists:
    """Lists by band, and by band and SCS; a default is the first item of the first list that has
    one."""

    def __init__(self, reference: Reference, bands: list[Band]) -> None:
        self.scs: JsonObject = {}
        self.rbs: JsonObject = {}
        self.mhz: JsonObject = {}
        self.first_scs = ""
        self.first_rb = ""
        self.first_mhz = ""
        for band in bands:
            spacings = reference.scs(band.name)
            self.scs[band.name] = spacings
            self.first_scs = self.first_scs or first_of(spacings)
            if not spacings:  # the spacing's box is empty, and so must be that of the blocks
                self.rbs[f"{band.name},"] = []
            for scs in spacings:
                rbs = reference.rbs(band.name, scs)
                self.rbs[f"{band.name},{scs}"] = rbs
                self.first_rb = self.first_rb or first_of(rbs)
            self.mhz[band.name] = reference.bandwidths(band.name)
            self.first_mhz = self.first_mhz or first_of(self.mhz[band.name])


def write_vrb(doc: Document, group_members: list[str]) -> None:
    doc.write([f"{members}.vrbStart.trait.valuePair" for members in group_members],
              vrb_starts(), "Update VRB start range failed")
    doc.write([f"{members}.vrbLength.trait.valuePair" for members in group_members],
              vrb_lengths(), "Update VRB length range failed")
