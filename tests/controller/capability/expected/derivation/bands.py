"""The first step of every page: its band list and its frequency ranges."""

from __future__ import annotations

from dataclasses import dataclass

from derivation.document import Document, JsonObject
from derivation.dut import RX, TX, Band, Dut
from derivation.reference import Reference, frequency_range

LINK = {TX: "uplink", RX: "downlink"}


@dataclass
class Update:
    """What a page driver works with."""

    doc: Document
    dut: Dut
    reference: Reference


def supported_bands(
    update: Update, direction: int, fdd_only: bool = False, mimo_only: bool = False
) -> list[Band]:
    """In the order of the DUT; the first is the default of the page."""

    def wanted(band: Band) -> bool:
        if mimo_only and not band.mimo:
            return False
        if not fdd_only:
            return True
        return not band.supplementary and update.reference.is_fdd(band.name)

    return [band for band in update.dut.bands[direction] if wanted(band)]


def names(bands: list[Band]) -> list[str]:
    return [band.name for band in bands]


def first_of(items: list[str]) -> str:
    """The default that a list gives: its first item, or nothing."""
    return items[0] if items else ""


def ranges_by_band(
    update: Update, direction: int, bands: list[Band], with_check: bool = False
) -> JsonObject:
    return {
        band.name: update.reference.band_range(band.name, LINK[direction], with_check)
        for band in bands
    }


def ranges_by_route(
    update: Update, direction: int, bands: list[Band], with_check: bool = False
) -> JsonObject:
    """A route on several bands keeps the range of the last. The DUT's limits of a route count on
    each band that has limits at all, whichever band they were declared for."""
    dut = update.dut
    limits = dut.limits[direction]
    limited_bands = {row.band for row in limits}
    limits_by_route = {row.route: row for row in reversed(limits)}
    ranges: JsonObject = {}
    for band in bands:
        if direction == TX:
            routes = dut.tx_routes(band.number)
        else:
            routes = dut.rx_routes(1, band.number) + dut.rx_routes(2, band.number)
        for route in routes:
            row = limits_by_route.get(int(route))
            if row is not None and band.number in limited_bands:
                ranges[route] = frequency_range(row.low, row.high, with_check)
            else:
                ranges[route] = update.reference.band_range(
                    band.name, LINK[direction], with_check
                )
    return ranges


@dataclass(frozen=True)
class BandPaths:
    """Members of a page in their group: where the bands and the frequencies go."""

    band: list[str]
    frequency: list[str]


def update_bands_and_frequency(
    update: Update, direction: int, paths: BandPaths, by_route: bool, with_check: bool
) -> list[Band]:
    doc = update.doc
    bands = supported_bands(update, direction)
    if bands:
        doc.write([f"{member}.trait.value" for member in paths.band], names(bands),
                  "Update band failed")
    doc.write([f"{member}.trait.defaultValue" for member in paths.band], first_of(names(bands)),
              "Update band default value failed")
    ranges_of = ranges_by_route if by_route else ranges_by_band
    ranges = ranges_of(update, direction, bands, with_check)
    if not ranges and not bands:
        doc.fail("Get frequency value relation failed")
    if ranges:
        doc.write([f"{member}.trait.valuePair" for member in paths.frequency], ranges,
                  "Update frequency value failed")
    return bands
