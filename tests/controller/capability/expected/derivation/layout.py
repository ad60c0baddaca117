"""Text of an expected document: keys sorted, and on one line what fits there."""

from __future__ import annotations

import json

from derivation.document import Json

WIDTH = 100


def one_line(value: Json) -> str:
    return json.dumps(value, sort_keys=True, ensure_ascii=False)


def is_flat(value: Json) -> bool:
    items = value.values() if isinstance(value, dict) else value
    return not any(isinstance(item, (dict, list)) for item in items)


def pretty(value: Json, indent: int = 0, before: int = 0) -> str:
    """The value's text; "before" is the length of what stands in front of it on its line."""
    if not isinstance(value, (dict, list)):
        return one_line(value)
    line = one_line(value)
    if is_flat(value) and indent + before + len(line) < WIDTH:
        return line
    inner = " " * (indent + 2)
    if isinstance(value, dict):
        keys = {one_line(key): value[key] for key in sorted(value)}
        rows = [f"{inner}{key}: {pretty(item, indent + 2, len(key) + 2)}"
                for key, item in keys.items()]
        return "{\n" + ",\n".join(rows) + "\n" + " " * indent + "}"
    rows = [inner + pretty(item, indent + 2) for item in value]
    return "[\n" + ",\n".join(rows) + "\n" + " " * indent + "]"
