"""The package as an engineer uses it."""

import threading
import time

import pytest

import quorlin

CONT_RX = "VOND_MMRf_ContRxV7_r"


@pytest.fixture(scope="module")
def bench():
    with quorlin.bench(profile="handset", max_dbm=10) as opened:
        yield opened


def test_opens_and_says_what_it_is(bench):
    assert bench.tool == "Quorlin RF"
    assert bench.handle == 1
    assert bench.chip
    assert "RSRP Normal Mode" in bench.pages and len(bench.pages) == 9


def test_the_example_of_the_package_holds(bench):
    rsrp = bench.page("RSRP Normal Mode")
    rsrp.set("request.group1.band", "n78", "dlFrequency", 3549990, "reportPeriod", "min")
    with rsrp.running():
        table = rsrp.wait_rows(10)
    assert max(table["BLER(%)"]) < 5
    assert len(table["RSRP0"]) >= 10
    assert table.units["BLER(%)"] == "%"
    assert rsrp.table()["RSRP0"][:10] == table["RSRP0"][:10]


def test_values_are_set_by_name_and_keyword(bench):
    rsrp = bench.page("CNrRsrpNormalDockWidgetV7")
    rsrp.set("request.group1.band", "n3", reportPeriod=500, measCnt="max")
    assert rsrp.get("request.group1.reportPeriod") == 500
    assert rsrp.get("request.group1.measCnt") == 10
    assert rsrp.values()["request.group1.band"] == "n3"


def test_refused_value_says_what_would_be_allowed(bench):
    rsrp = bench.page("RSRP Normal Mode")
    with pytest.raises(quorlin.RefusedValue) as refusal:
        rsrp.set("reportPeriod", 299)
    assert refusal.value.allowed == "300~10000"
    assert "does not take" in refusal.value.reason
    with pytest.raises(quorlin.RefusedValue) as refusal:
        rsrp.set(nothing=1)
    assert "request.group1.band" in refusal.value.allowed
    with pytest.raises(quorlin.RefusedValue) as refusal:
        bench.page("RSRP")
    assert "RSRP Normal Mode" in refusal.value.allowed
    with pytest.raises(TypeError):
        rsrp.set("band")


def test_cells_are_rows_of_readings(bench):
    rssi = bench.page("RSSI")
    rssi.set("request.group2.dlFrequency[0]", "min")
    cells = rssi.get("request.group2.dlFrequency")
    assert isinstance(cells, list) and cells[0] == rssi.get("request.group2.dlFrequency[0]")


def test_press_tells_status_and_duration(bench):
    pressed = bench.page("RSSI").press("Start")
    assert pressed.status == "Fetch RSSI done"
    assert pressed.seconds > 0 and not pressed.boxes


def test_power_beyond_the_limit_is_not_pressed(bench):
    tone = bench.page("Single Tone TX")
    tone.set(txPowerValue=10.5)
    with pytest.raises(quorlin.NotAllowed):
        tone.press("Start")
    tone.set(txPowerValue=10)
    with tone.running():
        tone.press("Fetch PD")


def test_transmission_and_write_have_to_be_allowed():
    with quorlin.bench(profile="handset") as closed:
        with pytest.raises(quorlin.NotAllowed):
            closed.page("Single Tone TX").press("Start")
        with pytest.raises(quorlin.NotAllowed):
            closed.page("RX Pathloss").press("Write")
        closed.page("Single Tone TX").set(txPowerValue=0)


def test_calibration_data_go_to_a_file_and_back(bench, tmp_path):
    loss = bench.page("RX Pathloss")
    loss.press("Read")
    file = tmp_path / "loss.ini"
    assert loss.export(str(file)).status == "Export data to file successfully."
    assert file.stat().st_size > 0
    assert loss.import_(str(file)).status == "Import data from file successfully."
    with pytest.raises(quorlin.RefusedValue):
        loss.import_(str(tmp_path / "none.ini"))


def test_box_is_an_exception_unless_it_is_named(faulty):
    profile = faulty({"function": CONT_RX, "kind": "fail", "result": 7})
    with quorlin.bench(profile=profile) as opened:
        page = opened.page("Continuous RX")
        with pytest.raises(quorlin.BoxOpened) as box:
            page.press("Start")
        assert box.value.boxes[0]["title"] == "Cont Rx start failed"
        assert "Vond command execute failed." in str(box.value)
        assert len(page.press("Start", box="Cont Rx start failed").boxes) == 1


def test_unsupported_dut_and_wrong_profile_say_why():
    with pytest.raises(quorlin.Unsupported, match="can't run on this DUT"):
        quorlin.bench(profile="unplugged")
    with pytest.raises(quorlin.ToolGone, match="There is no profile 'x'"):
        quorlin.bench(profile="x")
    with pytest.raises(quorlin.ToolGone, match="no program"):
        quorlin.bench(program="/nowhere/quorlin")


def test_rf_off_goes_next_while_another_thread_waits(journal, faulty):
    profile = faulty({"function": CONT_RX, "kind": "delay", "ms": 1500})
    with quorlin.bench(profile=profile) as opened:
        page = opened.page("Continuous RX")
        pressed = []
        thread = threading.Thread(target=lambda: pressed.append(page.press("Start")))
        thread.start()
        while not opened._process._waiting:  # the press is under way
            time.sleep(0.01)
        opened.rf_off()
        thread.join()
        assert pressed
    assert journal.is_idle()


def test_running_stops_however_it_is_left(journal):
    with quorlin.bench(profile="handset") as opened:
        page = opened.page("Continuous RX")
        with pytest.raises(ZeroDivisionError):
            with page.running():
                1 / 0
        assert journal.functions()[-1].startswith("VOND_MMRf_TestStop")


def test_end_of_with_turns_rf_off(journal):
    with quorlin.bench(profile="handset") as opened:
        opened.page("Continuous RX").press("Start")
    assert CONT_RX in journal.functions()
    assert journal.is_idle()
    opened.close()


def test_fixture_gives_the_bench_of_the_session(quorlin_bench):
    assert quorlin_bench.page("RSSI").description()["title"] == "RSSI"
