"""The band tables of 3GPP, as the reference document of the tool holds them."""

from __future__ import annotations

import json
from pathlib import Path

from derivation.document import JsonObject

OPEN_END = 2147483647  # kHz, upper limit of a band that the tables do not know


def frequency_range(low: int, high: int, with_check: bool) -> JsonObject:
    """Entry of a frequency member. With the check it takes 0 as well, which means no carrier."""
    if with_check:
        return {"min": 0, "max": high, "rangeCheck": f"0,{low}~{high}"}
    return {"min": low, "max": high}


class Reference:
    def __init__(self, file: Path) -> None:
        tables: JsonObject = json.loads(file.read_text(encoding="utf-8"))
        self.bands: JsonObject = tables["operatingBand"]
        self._scs: JsonObject = tables["SCSkHzByBand"]
        self._bandwidths: JsonObject = tables["BandWidthByBand"]
        self._rbs: JsonObject = tables["RBNumByBandSCS"]
        self._khz: JsonObject = tables["BandwidthBySscRb"]

    def duplex(self, band: str) -> str:
        return self.bands[band]["duplex"] if band in self.bands else ""

    def is_tdd(self, band: str) -> bool:
        return "TDD" in self.duplex(band)

    def is_fdd(self, band: str) -> bool:
        return "FDD" in self.duplex(band)

    def diff_freq(self, band: str) -> int:
        """DL minus UL carrier in kHz as tabled; n5 and n71 do not follow their ranges."""
        return self.bands[band]["diffFreqInTxRx"]

    def band_range(self, band: str, link: str, with_check: bool) -> JsonObject:
        """Of the "uplink" or the "downlink"."""
        low, high = 0, OPEN_END
        if band in self.bands:
            low, high = self.bands[band][link]["low"], self.bands[band][link]["high"]
        return frequency_range(low, high, with_check)

    def scs(self, band: str) -> list[str]:
        return self._scs.get(band, [])

    def bandwidths(self, band: str) -> list[str]:
        return self._bandwidths.get(band, [])

    def rbs(self, band: str, scs: str) -> list[str]:
        return self._rbs.get(f"{band},{scs}", [])

    def bandwidth_khz(self, scs: str, rb: str) -> int:
        return self._khz.get(f"{scs},{rb}", -1)
