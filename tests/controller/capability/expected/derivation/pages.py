"""What is done to the document of each page, in order."""

from __future__ import annotations

from collections.abc import Callable

from derivation.bands import (
    BandPaths,
    Update,
    first_of,
    names,
    ranges_by_band,
    ranges_by_route,
    supported_bands,
    update_bands_and_frequency,
)
from derivation.document import JsonObject
from derivation.dut import RX, TX, Band
from derivation.rx_steps import (
    RxLabelMembers,
    RxMembers,
    update_lna_columns,
    update_rssi_gain,
    update_rx_common,
    update_rx_labels,
)
from derivation.tx_steps import (
    update_bare_carrier,
    update_labels_by_block,
    update_labels_by_region,
    update_modulation,
)


def members_of(section: str, group: int) -> str:
    interface = "cmdIf" if section in ("request", "response") else "calDataIf"
    return f"{interface}.{section}.group{group}.memberProperty"


REQUEST = {group: members_of("request", group) for group in (1, 2, 3, 4)}
CONFIG = {group: members_of("config", group) for group in (1, 2)}


def pusch_forced(update: Update) -> None:
    paths = BandPaths([f"{REQUEST[1]}.band"], [f"{REQUEST[1]}.ulFrequency"])
    bands = update_bands_and_frequency(update, TX, paths, by_route=True, with_check=False)
    update_modulation(update, bands, [REQUEST[1]], with_routes=True, with_mimo=False)
    update_labels_by_block(update, bands, REQUEST[2])


def pusch_normal(update: Update) -> None:
    groups = [REQUEST[1], REQUEST[2]]
    paths = BandPaths([f"{group}.band" for group in groups],
                      [f"{group}.ulFrequency" for group in groups])
    bands = update_bands_and_frequency(update, TX, paths, by_route=False, with_check=False)
    update_modulation(update, bands, groups, with_routes=False, with_mimo=True)


def single_tone(update: Update) -> None:
    paths = BandPaths([f"{REQUEST[1]}.band"], [f"{REQUEST[1]}.ulFrequency"])
    bands = update_bands_and_frequency(update, TX, paths, by_route=True, with_check=False)
    update_bare_carrier(update, bands, REQUEST[1], with_ranges=True)
    update_labels_by_region(update, bands, REQUEST[2])


def apt_profile(update: Update) -> None:
    paths = BandPaths([f"{CONFIG[1]}.band"], [f"{members_of('data', 12)}.ulFreq"])
    bands = update_bands_and_frequency(update, TX, paths, by_route=True, with_check=True)
    update_bare_carrier(update, bands, CONFIG[1], with_ranges=False)
    update_labels_by_region(update, bands, CONFIG[2])


def continuous_rx(update: Update) -> None:
    paths = BandPaths([f"{REQUEST[1]}.band"], [f"{REQUEST[1]}.dlFrequency"])
    bands = update_bands_and_frequency(update, RX, paths, by_route=True, with_check=False)
    update_rx_common(update, bands, RxMembers(
        REQUEST[1], by_route_type=True, route="rxRoute", route_type="routeType", mhz="dlBw"))


def rssi(update: Update) -> None:
    paths = BandPaths([f"{REQUEST[1]}.band"], [f"{REQUEST[2]}.dlFrequency"])
    bands = update_bands_and_frequency(update, RX, paths, by_route=True, with_check=False)
    update_rx_common(update, bands, RxMembers(
        REQUEST[1], by_route_type=True, route="rxRoute", route_type="routeType"))
    update_rssi_gain(
        update,
        [f"{REQUEST[1]}.path0DivSearch", f"{REQUEST[1]}.path0MainSearch"],
        [f"{REQUEST[1]}.path1DivSearch", f"{REQUEST[1]}.path1MainSearch"])
    labels = ("feRouteNum", "port", "srx", "antMask", "mimoPairNum")
    update_rx_labels(update, bands, RxLabelMembers(
        by_route_type=True,
        path0=[f"{REQUEST[3]}.{label}P0" for label in labels],
        path1=[f"{REQUEST[4]}.{label}P1" for label in labels]))


def rx_path_loss(update: Update) -> None:
    paths = BandPaths([f"{CONFIG[1]}.band"], [f"{members_of('data', 4)}.freq"])
    bands = update_bands_and_frequency(update, RX, paths, by_route=True, with_check=True)
    update_rx_common(update, bands, RxMembers(
        CONFIG[1], by_route_type=True, route="route", route_type="routeType"))
    update_lna_columns(update)


def update_rsrp_bands(
    update: Update, bands: list[Band], choices: JsonObject, ranges: JsonObject
) -> None:
    doc = update.doc
    doc.write([f"{REQUEST[1]}.band.trait.valuePair"], choices, "Update band failed")
    doc.write([f"{REQUEST[1]}.band.trait.defaultValue"], first_of(names(bands)),
              "Update band default value failed")
    if not ranges and not bands:
        doc.fail("Get frequency value relation failed")
    doc.write([f"{REQUEST[1]}.dlFrequency.trait.valuePair"], ranges,
              "Update frequency value failed")


def update_pseudo_tx(update: Update, fdd_bands: list[Band], members: str) -> None:
    """The defaults are fixed, whatever the DUT offers."""
    doc = update.doc
    doc.write([f"{members}.band.trait.valuePair"], {band.name: band.name for band in fdd_bands},
              "Update tx band value failed")
    doc.write([f"{members}.band.trait.defaultValue"], "n1", "Update tx band value failed")
    doc.write([f"{members}.ulFrequency.trait.valuePair"],
              {band.name: update.reference.diff_freq(band.name) for band in fdd_bands},
              "Update ulFrequency value failed")
    doc.write([f"{members}.ulFrequency.trait.defaultValue"], "1920000",
              "Update ulFrequency value failed")


def rsrp_forced(update: Update) -> None:
    bands = supported_bands(update, RX)
    fdd_bands = supported_bands(update, RX, fdd_only=True)
    update_rsrp_bands(update, bands, {"DL RX": names(bands), "Pseudo TX/RX": names(fdd_bands)},
                      ranges_by_route(update, RX, bands))
    update_rx_common(update, bands, RxMembers(
        REQUEST[1], by_route_type=False, route="rxRoute", scs="rxScs", rb="dlBandwidth",
        slot="tddSlotConfig", vrb_group=REQUEST[3]))
    labels = ("feRouteNum", "port", "srx", "antMask", "mimoPairNum")
    update_rx_labels(update, bands, RxLabelMembers(
        by_route_type=False,
        path0=[f"{REQUEST[2]}.{label}" for label in labels],
        path1=[],
        tx_route=f"{REQUEST[3]}.txRoute"))
    if fdd_bands:
        update_labels_by_block(update, fdd_bands, REQUEST[4], ("feRouteNum", "port", "stx"))
        update_pseudo_tx(update, fdd_bands, REQUEST[3])


def rsrp_normal(update: Update) -> None:
    bands = supported_bands(update, RX)
    fdd_bands = supported_bands(update, RX, fdd_only=True)
    update_rsrp_bands(
        update,
        bands,
        {
            "DL RX,2x2": names(bands),
            "DL RX,4x4": names(supported_bands(update, RX, mimo_only=True)),
            "Pseudo TX/RX,2x2": names(fdd_bands),
            "Pseudo TX/RX,4x4": names(
                supported_bands(update, RX, fdd_only=True, mimo_only=True)),
        },
        ranges_by_band(update, RX, bands))
    update_rx_common(update, bands, RxMembers(
        REQUEST[1], by_route_type=False, scs="rxScs", rb="dlBandwidth", slot="tddSlotConfig",
        vrb_group=REQUEST[2]))
    if fdd_bands:
        update_pseudo_tx(update, fdd_bands, REQUEST[2])


# By the name of the page's resource.
PAGES: dict[str, Callable[[Update], None]] = {
    "NrPuschTxForceModeV7": pusch_forced,
    "NrPuschTxNormalModeV7": pusch_normal,
    "NrSingleToneTxV7": single_tone,
    "NrRsrpForceModeV7": rsrp_forced,
    "NrRsrpNormalModeV7": rsrp_normal,
    "NrAptProfileV7": apt_profile,
    "NrContRxV7": continuous_rx,
    "NrRssiV7": rssi,
    "NrRxPathLossV7": rx_path_loss,
}
