"""The DUT as the capability reads show it, worked out from its profile."""

from __future__ import annotations

from dataclasses import dataclass, field

from derivation.document import JsonObject
from derivation.profile import check_usable

TX, RX = 1, 0  # directions of a band list
MOST_TX_PAIRS = 255  # route and bandwidth pairs that one detail request lists


@dataclass(frozen=True)
class Band:
    number: int
    supplementary: bool  # the DUT has one direction of it alone
    mimo: bool  # UL MIMO in a TX list, 4x4 reception in an RX list

    @property
    def name(self) -> str:
        return f"n{self.number}"


@dataclass(frozen=True)
class Hardware:
    """What stands behind a TX route in one region, or behind an RX route; all zero when empty."""

    ant_mask: int = 0
    fe_route: int = 0
    ports: tuple[str, ...] = ("",)
    paths: tuple[int, ...] = (0,)  # STX or SRX number, of path 0 and of path 1
    mimo_pairs: tuple[int, ...] = ()


@dataclass(frozen=True)
class TxRoute:
    band: int
    route: int
    limits_khz: tuple[int, ...]  # upper bound of each bandwidth region
    regions: tuple[Hardware, ...]  # as many

    def hardware(self, region: int) -> Hardware:
        return self.regions[region] if region < len(self.regions) else Hardware()


@dataclass(frozen=True)
class RxRoute:
    band: int
    route: int
    kind: int  # 1 or 2
    hardware: Hardware
    tx_routes: tuple[str, ...]  # that can pair with it, type 1 only


@dataclass(frozen=True)
class RouteLimits:
    band: int
    route: int
    low: int  # kHz
    high: int


@dataclass(frozen=True)
class GainTables:
    """Gain modes of one power mode: single[i][j], both[i][k][j]."""

    single: list[list[bool]]
    both: list[list[list[bool]]]


@dataclass
class Dut:
    bands: dict[int, list[Band]]  # by direction
    tx_rows: list[TxRoute]
    rx_rows: list[RxRoute]  # type 1 first
    limits: dict[int, list[RouteLimits]]  # by direction
    gain: dict[str, GainTables]  # "HPM" and "LPM"
    tx_row_by_route: dict[int, TxRoute] = field(init=False)
    rx_row_by_route: dict[int, RxRoute] = field(init=False)

    def __post_init__(self) -> None:
        # A route that stands on several bands is known by its first row.
        self.tx_row_by_route = {row.route: row for row in reversed(self.tx_rows)}
        self.rx_row_by_route = {row.route: row for row in reversed(self.rx_rows)}

    def tx_routes(self, band: int) -> list[str]:
        return [str(row.route) for row in self.tx_rows if row.band == band]

    def rx_routes(self, kind: int, band: int) -> list[str]:
        return [str(row.route) for row in self.rx_rows if row.band == band and row.kind == kind]

    def is_mimo_band(self, direction: int, band: int) -> bool:
        return any(row.number == band and row.mimo for row in self.bands[direction])


def dut_from_profile(profile: JsonObject) -> Dut:
    check_usable(profile)
    return Dut(
        bands={direction: read_bands(profile, direction) for direction in (TX, RX)},
        tx_rows=read_tx_rows(profile),
        rx_rows=read_rx_rows(profile),
        limits={
            TX: read_limits(profile.get("txLimits", [])),
            RX: read_limits(profile.get("rxLimits", [])),
        },
        gain={
            "HPM": read_gain(profile["gain"]["hpm"]),
            "LPM": read_gain(profile["gain"]["lpm"]),
        },
    )


def read_bands(profile: JsonObject, direction: int) -> list[Band]:
    other_way = "downlinkOnly" if direction == TX else "uplinkOnly"
    mimo = "ulMimo" if direction == TX else "rx4x4"
    return [
        Band(
            number=row["band"],
            supplementary=row.get("downlinkOnly", False) or row.get("uplinkOnly", False),
            mimo=row.get(mimo, False),
        )
        for row in profile["bands"]
        if not row.get(other_way, False)
    ]


def read_hardware(row: JsonObject) -> Hardware:
    path = row["stx"] if "stx" in row else row["srx"]
    return Hardware(
        ant_mask=row["antMask"],
        fe_route=row["feRoute"],
        ports=tuple(row["ports"]) if "ports" in row else (row["port"],),
        paths=tuple(path) if isinstance(path, list) else (path,),
        mimo_pairs=tuple(row.get("mimoPairs", [])),
    )


def region_hardware(profile: JsonObject, route: int, khz: int) -> Hardware:
    """The DUT answers for a route number and a bandwidth: the first row with both."""
    for row in profile["txRoutes"]:
        for region in row.get("regions", []):
            if row["route"] == route and region["kHz"] == khz:
                return read_hardware(region)
    raise ValueError(f"TX route {route} has no region {khz}")


def read_tx_rows(profile: JsonObject) -> list[TxRoute]:
    rows = []
    for row in profile["txRoutes"]:
        limits = tuple(region["kHz"] for region in row.get("regions", []))
        regions = tuple(region_hardware(profile, row["route"], khz) for khz in limits)
        rows.append(TxRoute(row["band"], row["route"], limits, regions))
    if sum(len(row.limits_khz) for row in rows) > MOST_TX_PAIRS:
        raise ValueError("more TX route and bandwidth pairs than one request lists")
    return rows


def paired_tx_routes(profile: JsonObject, route: int) -> tuple[str, ...]:
    """TX routes named by any row of that RX route number, whatever its band and type."""
    return tuple(
        str(number)
        for row in profile["rxType1Routes"] + profile["rxType2Routes"]
        if row["route"] == route
        for number in row.get("txRoutes", [])
    )


def read_rx_rows(profile: JsonObject) -> list[RxRoute]:
    rows = []
    for kind, table in ((1, profile["rxType1Routes"]), (2, profile["rxType2Routes"])):
        by_route = {row["route"]: row for row in reversed(table)}
        for row in table:
            route = row["route"]
            paired = paired_tx_routes(profile, route) if kind == 1 else ()
            rows.append(
                RxRoute(row["band"], route, kind, read_hardware(by_route[route]), paired)
            )
    return rows


def read_limits(rows: list[JsonObject]) -> list[RouteLimits]:
    return [RouteLimits(row["band"], row["route"], *row["kHz"]) for row in rows]


def read_gain(tables: JsonObject) -> GainTables:
    def bits(text: str) -> list[bool]:
        return [bit == "1" for bit in text]

    return GainTables(
        single=[bits(text) for text in tables["t1"]],
        both=[[bits(group) for group in text.split(" ")] for text in tables["t2"]],
    )
