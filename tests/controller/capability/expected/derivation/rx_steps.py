"""Steps of the RX pages. A "members" argument is the path of a group's members."""

from __future__ import annotations

from dataclasses import dataclass

from derivation.bands import Update, first_of
from derivation.blocks import BlockLists, slot_enables, write_vrb
from derivation.document import JsonObject
from derivation.dut import Band
from derivation.labels import NOTHING, LabelTables, label_texts

ELNA_GAINS = range(7)
GAIN_MODES = range(3)
MOST_LNA_COLUMNS = 8  # lna0 to lna7


@dataclass(frozen=True)
class RxMembers:
    """Which members a page has, below the members of its first group. Empty: has not."""

    members: str
    by_route_type: bool
    route: str = ""
    route_type: str = ""
    mhz: str = ""
    scs: str = ""
    rb: str = ""
    slot: str = ""
    vrb_group: str = ""  # the members of another group

    def paths(self, member: str, leaf: str) -> list[str]:
        return [f"{self.members}.{member}.{leaf}"] if member else []


def update_rx_common(update: Update, bands: list[Band], page: RxMembers) -> None:
    doc = update.doc
    routes: JsonObject = {}
    types: JsonObject = {}
    for band in bands:
        type1 = update.dut.rx_routes(1, band.number)
        type2 = update.dut.rx_routes(2, band.number)
        if not page.by_route_type:
            routes[band.name] = type1
            continue
        routes[f"{band.name},Type1"] = type1
        types[band.name] = ["Type1"]
        if type2:
            routes[f"{band.name},Type2"] = type2
            types[band.name].append("Type2")
    enables = slot_enables(update.reference, bands)
    lists = BlockLists(update.reference, bands)
    first_key = bands[0].name + (",Type1" if page.by_route_type else "")

    doc.write(page.paths(page.slot, "trait.enableStatusPair"), enables,
              "Update slot format failed")
    doc.write(page.paths(page.slot, "defaultEnableStatus"), enables[bands[0].name],
              "Update slot format default enable failed")
    doc.write(page.paths(page.route, "trait.valuePair"), routes, "Update route route failed")
    doc.write(page.paths(page.route, "trait.defaultValue"), first_of(routes[first_key]),
              "Update route default value failed")
    if page.by_route_type:
        doc.write(page.paths(page.route_type, "trait.valuePair"), types,
                  "Update route type failed")
    doc.write(page.paths(page.rb, "trait.valuePair"), lists.rbs, "Update UL Bandwidth failed")
    doc.write(page.paths(page.rb, "trait.defaultValue"), lists.first_rb,
              "Update UL Bandwidth RB default value failed")
    doc.write(page.paths(page.mhz, "trait.valuePair"), lists.mhz, "Update UL Bandwidth failed")
    doc.write(page.paths(page.mhz, "trait.defaultValue"), lists.first_mhz,
              "Update UL Bandwidth default value failed")
    doc.write(page.paths(page.scs, "trait.valuePair"), lists.scs, "Update SCS failed")
    doc.write(page.paths(page.scs, "trait.defaultValue"), lists.first_scs,
              "Update SCS default value failed")
    if page.vrb_group:
        write_vrb(doc, [page.vrb_group])


@dataclass(frozen=True)
class RxLabelMembers:
    """Full paths of the label members, in the order of the labels."""

    by_route_type: bool
    path0: list[str]
    path1: list[str]  # empty: the page shows one path
    tx_route: str = ""  # empty: the page pairs no TX route


def update_rx_labels(update: Update, bands: list[Band], page: RxLabelMembers) -> None:
    """Type 2 keys always name their type, also where type 1 keys do not."""
    doc = update.doc
    path0, path1 = LabelTables(), LabelTables()
    tx_routes: JsonObject = {}
    default_tx_route = ""
    for band in bands:
        for route in update.dut.rx_routes(1, band.number):
            row = update.dut.rx_row_by_route[int(route)]
            key = f"{route},Type1" if page.by_route_type else route
            tx_routes[route] = list(row.tx_routes)
            if not path0.has_defaults:
                default_tx_route = first_of(tx_routes[route])
            path0.add_found(key, label_texts(row.hardware))
            path1.add(key, NOTHING)
        for route in update.dut.rx_routes(2, band.number):
            row = update.dut.rx_row_by_route[int(route)]
            path0.add(f"{route},Type2", label_texts(row.hardware, path=0))
            path1.add(f"{route},Type2", label_texts(row.hardware, path=1))
    path0.write(doc, page.path0)
    path1.write(doc, page.path1, with_defaults=False)
    if page.tx_route:
        doc.write([f"{page.tx_route}.trait.valuePair"], tx_routes,
                  "Update tx list route by rx route value faile")
        doc.write([f"{page.tx_route}.trait.defaultValue"], default_tx_route,
                  "Update  tx list route by rx route default value failed")


def mode_names(flags: list[bool]) -> list[str]:
    return [f"g{mode}" for mode in GAIN_MODES if flags[mode]]


def update_rssi_gain(update: Update, path0: list[str], path1: list[str]) -> None:
    """Gain modes of path 0 by power mode, calibration type and eLNA gain; of path 1 by the gain
    mode of path 0 as well."""
    table0: JsonObject = {}
    table1: JsonObject = {}
    for power, gain in update.dut.gain.items():
        for elna in ELNA_GAINS:
            alone = mode_names(gain.single[elna])
            table0[f"{power},Partial-On Path0,G{elna}"] = alone
            # Path 0 does not run then: its member is empty, or shows what it showed before.
            for other in ("", "g0", "g1", "g2"):
                table1[f"{power},Partial-On Path1,G{elna},{other}"] = alone

            partners = {f"g{k}": mode_names(gain.both[elna][k]) for k in GAIN_MODES}
            together = f"{power},Simultaneously,G{elna}"
            table0[together] = [mode for mode, modes in partners.items() if modes]
            table1[f"{together},"] = ""
            for mode, modes in partners.items():
                table1[f"{together},{mode}"] = modes
    update.doc.write([f"{member}.trait.valuePair" for member in path0], table0,
                     "Update type1 gain mode(gx) info failed")
    update.doc.write([f"{member}.trait.valuePair" for member in path1], table1,
                     "Update path1 gain mode(gx) info failed")


def update_lna_columns(update: Update) -> None:
    """Column captions of the path loss tables, from the high power mode alone."""
    doc = update.doc
    gain = update.dut.gain
    lists: dict[str, list[str]] = {"HPM": [], "LPM": []}
    for elna in ELNA_GAINS:
        for mode in GAIN_MODES:
            for power, found in lists.items():
                if not gain[power].single[elna][mode]:
                    continue
                found.append(f"G{elna},g{mode}")
                if len(found) > MOST_LNA_COLUMNS:
                    doc.fail("LNA mode number is over the current limitation 8")
                if power == "HPM":
                    write_lna_caption(update, len(found) - 1, found[-1])
    doc.write(["calDataIf.data.group5.memberProperty.colFieldCaptionList"], lists["HPM"],
              "Update Type2 partial-on colFieldCaptionList failed")
    for power, found in lists.items():
        doc.write([f"calDataIf.config.group1.memberProperty.scGainInfo.trait.valuePair.{power}"],
                  found, f"Update scGainInfo {power} failed")


def write_lna_caption(update: Update, column: int, caption: str) -> None:
    for group, table in (("group2", "main"), ("group3", "div")):
        path = f"calDataIf.data.{group}.memberProperty.lna{column}.caption"
        update.doc.write([path], caption, f"Update Type1 {table} table lna{column}caption failed")
