"""Steps of the TX pages. A "members" argument is the path of a group's members."""

from __future__ import annotations

from derivation.bands import Update, first_of
from derivation.blocks import BlockLists, by_carrier_count, slot_enables, write_vrb
from derivation.document import JsonObject
from derivation.dut import TX, Band, TxRoute
from derivation.labels import NOT_FOUND, LabelTables, label_texts

TX_LABELS = ("feRouteNum", "port", "stx", "antMask", "mimoPairNum")


def route_lists(update: Update, bands: list[Band]) -> dict[str, list[str]]:
    return {band.name: update.dut.tx_routes(band.number) for band in bands}


def update_modulation(
    update: Update, bands: list[Band], groups: list[str], with_routes: bool, with_mimo: bool
) -> None:
    """Of the PUSCH pages. A second group is that of the second carrier."""
    doc = update.doc
    first, seconds = groups[0], groups[1:]

    def write_enables(member: str, enables: JsonObject, failed: str, default_failed: str) -> None:
        doc.write([f"{first}.{member}.trait.enableStatusPair"], enables, failed)
        doc.write([f"{group}.{member}.trait.enableStatusPair" for group in seconds],
                  by_carrier_count(enables), failed)
        doc.write([f"{first}.{member}.defaultEnableStatus"], enables[bands[0].name],
                  default_failed)

    write_enables("tddSlotConfig", slot_enables(update.reference, bands),
                  "Update slot format failed", "Update slot format default enable failed")
    if with_mimo:
        doc.write([f"{group}.enableMimo.trait.valuePair" for group in groups],
                  {band.name: "false" for band in bands}, "Update mimo band value pair failed")
        write_enables("enableMimo",
                      {band.name: int(update.dut.is_mimo_band(TX, band.number)) for band in bands},
                      "Update mimo enable failed", "Update mimo enable default enable failed")
    if with_routes:
        routes = route_lists(update, bands)
        doc.write([f"{group}.txRoute.trait.valuePair" for group in groups], routes,
                  "Update route failed")
        doc.write([f"{group}.txRoute.trait.defaultValue" for group in groups],
                  first_of(routes[bands[0].name]), "Update route default value failed")
    lists = BlockLists(update.reference, bands)
    doc.write([f"{group}.ulBandwidth.trait.valuePair" for group in groups], lists.rbs,
              "Update UL Bandwidth failed")
    doc.write([f"{group}.ulBandwidth.trait.defaultValue" for group in groups], lists.first_rb,
              "Update UL Bandwidth default value failed")
    doc.write([f"{group}.txScs.trait.valuePair" for group in groups], lists.scs,
              "Update SCS failed")
    doc.write([f"{group}.txScs.trait.defaultValue" for group in groups], lists.first_scs,
              "Update SCS default value failed")
    write_vrb(doc, groups)


def region_texts(row: TxRoute) -> dict[str, str]:
    """What each bandwidth region of a route spans, in whole MHz."""
    texts = {}
    lower = 0
    for index, limit in enumerate(row.limits_khz):
        upper = limit // 1000
        texts[f"BW{index}"] = f"{lower} < BW{index} <= {upper}MHz"
        lower = upper
    return texts


def update_bare_carrier(
    update: Update, bands: list[Band], members: str, with_ranges: bool
) -> None:
    """Of the pages that work on a carrier without modulation."""
    doc = update.doc
    routes = route_lists(update, bands)
    regions: JsonObject = {}
    ranges: JsonObject = {}
    for route in [route for of_band in routes.values() for route in of_band]:
        texts = region_texts(update.dut.tx_row_by_route[int(route)])
        regions[route] = list(texts)
        ranges.update({f"{route},{name}": text for name, text in texts.items()})
    default_route = first_of(routes[bands[0].name])
    doc.write([f"{members}.txRoute.trait.valuePair"], routes, "Update comp rRoute failed")
    doc.write([f"{members}.txRoute.trait.defaultValue"], default_route,
              "Update comp Route default value  failed")
    doc.write([f"{members}.aggBwRegion.trait.valuePair"], regions, "Update BW region failed")
    doc.write([f"{members}.aggBwRegion.trait.defaultValue"], "BW0",
              "Update BW region default value  failed")
    if with_ranges:
        doc.write([f"{members}.aggBwKhzRange.trait.valuePair"], ranges, "Update BW region failed")
        doc.write([f"{members}.aggBwKhzRange.trait.defaultValue"],
                  ranges.get(f"{default_route},BW0", ""), "Update BW range default value  failed")


def region_of(row: TxRoute, bandwidth_khz: int) -> int:
    """The first region that takes the bandwidth; region 0 when it is beyond them all."""
    for index, limit in enumerate(row.limits_khz):
        if bandwidth_khz <= limit:
            return index
    return 0


def update_labels_by_block(
    update: Update, bands: list[Band], members: str, labels: tuple[str, ...] = TX_LABELS
) -> None:
    """Labels keyed by route, SCS and RB count."""
    found = LabelTables()
    reference = update.reference
    for band in bands:
        for route in update.dut.tx_routes(band.number):
            row = update.dut.tx_row_by_route[int(route)]
            for scs in reference.scs(band.name):
                for rb in reference.rbs(band.name, scs):
                    key = f"{route},{scs},{rb}"
                    khz = reference.bandwidth_khz(scs, rb)
                    if khz == -1:
                        found.add(key, NOT_FOUND)
                    else:
                        found.add_found(key, label_texts(row.hardware(region_of(row, khz))))
    found.write(update.doc, [f"{members}.{label}" for label in labels])


def update_labels_by_region(update: Update, bands: list[Band], members: str) -> None:
    """Labels keyed by route and bandwidth region."""
    found = LabelTables()
    for band in bands:
        for route in update.dut.tx_routes(band.number):
            row = update.dut.tx_row_by_route[int(route)]
            for index, hardware in enumerate(row.regions):
                found.add_found(f"{route},BW{index}", label_texts(hardware))
    found.write(update.doc, [f"{members}.{label}" for label in TX_LABELS])
