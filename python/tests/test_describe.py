"""quorlin describe: what it says, by its schema; the options that all such commands share."""

import json
import os
import pathlib
import subprocess

import pytest

from quorlin._process import find_program

ROOT = pathlib.Path(__file__).resolve().parents[2]
ODD = str(ROOT / "tests/controller/capability/profiles/odd.json")
SCHEMA = json.loads((ROOT / "docs/describe.schema.json").read_text())
TYPES = {"object": dict, "array": list, "string": str, "boolean": bool, "integer": int}


def check(value, schema, place="$"):
    """The part of JSON Schema that the schema uses."""
    known = {"$ref", "type", "enum", "required", "properties", "additionalProperties", "items"}
    notes = {"description", "title", "$schema", "$defs"}
    assert set(schema) <= known | notes, f"{place}: the checker lacks {set(schema) - known - notes}"
    if "$ref" in schema:
        check(value, SCHEMA["$defs"][schema["$ref"].split("/")[-1]], place)
    if "enum" in schema:
        assert value in schema["enum"], f"{place}: {value!r}"
    if "type" in schema:
        assert isinstance(value, TYPES[schema["type"]]), f"{place}: {value!r}"
        assert schema["type"] != "integer" or not isinstance(value, bool), place
    for key in schema.get("required", []):
        assert key in value, f"{place} lacks {key}"
    if schema.get("additionalProperties") is False:
        assert set(value) <= set(schema["properties"]), f"{place}: {sorted(value)}"
    for key, part in schema.get("properties", {}).items():
        if key in value:
            check(value[key], part, f"{place}.{key}")
    for number, item in enumerate(value if "items" in schema else []):
        check(item, schema["items"], f"{place}[{number}]")


def run(*arguments, **environment):
    return subprocess.run(
        [find_program(), *arguments],
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        text=True,
        timeout=120,
        env={**os.environ, **environment},
    )


@pytest.mark.parametrize("profile", ["handset", ODD])
def test_json_is_that_of_the_schema_on_every_page(profile):
    described = run("describe", "--json", "--profile", profile)
    assert described.returncode == 0 and described.stderr == ""
    tool = json.loads(described.stdout)
    check(tool, SCHEMA)
    assert len(tool["pages"]) == 9 and "page" not in tool
    for page in tool["pages"]:
        of_page = run("describe", page["title"], "--json", "--profile", profile)
        assert of_page.returncode == 0, of_page.stderr
        one = json.loads(of_page.stdout)
        check(one, SCHEMA)
        assert one["page"]["class"] == page["class"]
        assert one["page"]["buttons"] and one["page"]["members"]


def test_schema_check_can_fail():
    with pytest.raises(AssertionError):
        check({"tool": "x"}, SCHEMA)
    with pytest.raises(AssertionError):
        check({"tool": "x", "version": "", "chip": "", "handle": "1"}, SCHEMA)


def test_choices_are_those_of_the_dut():
    def bands(profile):
        page = json.loads(run("describe", "RSSI", "--json", "--profile", profile).stdout)["page"]
        return next(m for m in page["members"] if m["key"] == "band" and m["input"])["choices"]

    assert "n1" in bands("handset")
    assert "n1" not in bands(ODD) and "n48" in bands(ODD)


def test_text_lists_buttons_members_and_tables():
    text = run("describe", "RSRP Normal Mode", "--profile", "handset").stdout
    assert "m_start" in text and "request.group1.reportPeriod" in text
    assert "300~10000" in text and "response.group1" in text


def test_trouble_is_a_line_and_an_exit_code():
    wrong = run("describe", "RSRP", "--profile", "handset")
    assert wrong.returncode == 2 and "RSRP Normal Mode" in wrong.stderr and wrong.stdout == ""
    assert run("describe", "--profile", "nothing").returncode == 2
    assert run("describe", "--plugin", "/nowhere.so").returncode == 2
    assert run("describe", "--link", "/nowhere.so").returncode == 2
    assert run("describe", "--handle", "x").returncode == 2
    assert run("serve", "--allow-transmit").returncode == 2
    unplugged = run("describe", "--profile", "unplugged")
    assert unplugged.returncode == 3 and "can't run on this DUT" in unplugged.stderr


LINK = os.environ.get("QUORLIN_TEST_LINK", "")


@pytest.mark.skipif(not LINK, reason="no link library was built")
def test_link_gives_the_handle_and_is_closed(tmp_path, journal):
    log = tmp_path / "link.log"
    described = run("describe", "--json", "--link", LINK, TEST_LINK_LOG=str(log))
    assert described.returncode == 0, described.stderr
    assert json.loads(described.stdout)["handle"] == 7
    assert log.read_text() == "open 7\nclose 7\n"
    handles = {json.loads(line).get("handle", 7) for line in journal.path.read_text().splitlines()}
    assert 7 in handles and 1 not in handles


@pytest.mark.skipif(not LINK, reason="no link library was built")
def test_link_that_does_not_open_is_told(tmp_path):
    failed = run("describe", "--link", LINK, TEST_LINK_FAILS="1")
    assert failed.returncode == 2 and "has opened no link" in failed.stderr
    plugin = str(pathlib.Path(find_program()).parents[1] / "plugins/libQuorlinRf.so")
    other = run("describe", "--link", plugin)
    assert other.returncode == 2 and "has no VondLink_Open" in other.stderr
