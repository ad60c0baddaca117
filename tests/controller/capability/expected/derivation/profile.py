"""A profile of the simulated DUT, read as JSON.

Only what a capability read can tell is used. Profiles whose DUT does not answer all of its
capability reads, or that let the simulator make up their routes, have no expected documents: they
are refused here.
"""

from __future__ import annotations

import json
from pathlib import Path

from derivation.document import Json, JsonObject

BUILTIN_PROFILES = Path("Simulator/profile/builtin")  # below the top of the tree
REFUSED_KEYS = ("generate", "functions", "faults")


def merge(below: Json, above: Json) -> Json:
    """Objects key by key, null removes a key, everything else replaces."""
    if not isinstance(above, dict):
        return above
    merged = dict(below) if isinstance(below, dict) else {}
    for key, value in above.items():
        if value is None:
            merged.pop(key, None)
        else:
            merged[key] = merge(merged.get(key), value)
    return merged


def load_profile(top: Path, file: Path) -> JsonObject:
    """The profile with all that it takes from its base."""
    own: JsonObject = json.loads(file.read_text(encoding="utf-8"))
    base = own.pop("base", None)
    if base is not None:
        own = merge(load_profile(top, top / BUILTIN_PROFILES / f"{base}.json"), own)
    return own


def check_usable(profile: JsonObject) -> None:
    """A DUT that is there, knows NR and answers by its own tables."""
    name = profile["name"]
    for key in REFUSED_KEYS:
        if key in profile:
            raise ValueError(f"profile {name}: expected documents cannot be made with \"{key}\"")
    world = profile["worldMode"]
    if not profile.get("plugged", True) or profile["generation"] != 1:
        raise ValueError(f"profile {name}: the DUT answers no NR capability reads")
    if not world["valid"] or not world["mask"] & 0x40:
        raise ValueError(f"profile {name}: the DUT has no NR in its world mode")
    type1 = {row["route"] for row in profile["rxType1Routes"]}
    both = type1 & {row["route"] for row in profile["rxType2Routes"]}
    if both:
        raise ValueError(f"profile {name}: RX routes {sorted(both)} are of both types")
