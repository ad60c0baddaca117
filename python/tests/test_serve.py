"""The protocol behind the package, and the ways in which a client can go."""

import json
import os
import pathlib
import random
import signal
import subprocess
import sys
import time

import pytest

from quorlin._process import find_program

CONT_RX = "VOND_MMRf_ContRxV7_r"
PACKAGE = str(pathlib.Path(__file__).resolve().parents[1])


class Serve:
    def __init__(self, *options):
        self.child = subprocess.Popen(
            [find_program(), "serve", *options],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )
        self.notes = []
        assert self.read()["method"] == "ready"

    def read(self):
        return json.loads(self.child.stdout.readline())

    def send(self, text):
        self.child.stdin.write(text.encode() + b"\n")
        self.child.stdin.flush()

    def answer(self, number=None):
        """The next answer, or that of a request; what comes before is kept."""
        while True:
            message = self.read()
            if "method" not in message and (number is None or message["id"] == number):
                return message
            self.notes.append(message)

    def call(self, number, method, **params):
        self.send(json.dumps({"jsonrpc": "2.0", "id": number, "method": method, "params": params}))
        return self.answer(number)

    def end(self):
        self.child.stdin.close()
        self.child.stdout.read()
        return self.child.wait(timeout=60)


@pytest.fixture
def serve():
    server = Serve("--profile", "handset")
    yield server
    if server.child.poll() is None:
        server.end()


BROKEN = [
    ("{", -32700, None),
    ("nonsense", -32700, None),
    ('"text"', -32700, None),
    ("[]", -32600, None),
    ('[{"jsonrpc": "2.0", "id": 1, "method": "describe"}]', -32600, None),
    ("{}", -32600, None),
    ('{"id": 4, "method": "describe"}', -32600, 4),
    ('{"jsonrpc": "1.0", "id": 4, "method": "describe"}', -32600, 4),
    ('{"jsonrpc": "2.0", "id": 4}', -32600, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": 7}', -32600, 4),
    ('{"jsonrpc": "2.0", "id": {}, "method": "describe"}', -32600, None),
    ('{"jsonrpc": "2.0", "id": 4, "method": "describe", "params": [1]}', -32600, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "nothing"}', -32601, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "Describe"}', -32601, 4),
    ('{"jsonrpc": "2.0", "id": "x", "method": "set"}', -32602, "x"),
    ('{"jsonrpc": "2.0", "id": 4, "method": "set", "params": {"page": "RSSI"}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "set", "params": {"page": "RSSI", "values": 1}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "set", "params": {"page": "RSSI", "values": [1]}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "set", "params": {"page": 1}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "press", "params": {"page": "RSSI"}}', -32602, 4),
    (
        '{"jsonrpc": "2.0", "id": 4, "method": "press",'
        ' "params": {"page": "RSSI", "button": "Start", "timeout": "long"}}',
        -32602,
        4,
    ),
    ('{"jsonrpc": "2.0", "id": 4, "method": "wait", "params": {"timeout": -1}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "wait", "params": {"time": 1e99}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "wait", "params": {"rows": 1}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "export", "params": {"page": "RSSI"}}', -32602, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "get", "params": {"page": "Nowhere"}}', 1, 4),
    ('{"jsonrpc": "2.0", "id": 4, "method": "press", "params": {"page": "RSSI", "button": "Go"}}', 1, 4),
]


def test_wrong_messages_are_answered_as_errors(serve):
    for text, code, number in BROKEN:
        serve.send(text)
        answer = serve.answer()
        assert answer["error"]["code"] == code, text
        assert answer["error"]["message"], text
        assert answer["id"] == number, text
    assert serve.call(9, "describe")["result"]["tool"] == "Quorlin RF"


def test_bytes_of_any_kind_do_not_end_the_server(serve):
    noise = random.Random(7)
    for _ in range(50):
        line = bytes(noise.choice([b for b in range(256) if b != 10]) for _ in range(60))
        serve.child.stdin.write(line + b"\n")
    serve.child.stdin.write(b"x" * (3 << 20) + b"\n\n  \n")
    serve.child.stdin.flush()
    assert "result" in serve.call(1, "describe", page="RSSI")


def test_notification_gets_no_answer(serve):
    serve.send('{"jsonrpc": "2.0", "method": "describe"}')
    serve.send('{"jsonrpc": "2.0", "method": "nothing"}')
    assert serve.call(5, "describe")["id"] == 5
    assert all("method" in note for note in serve.notes)


def test_status_busy_and_boxes_are_told(faulty):
    profile = faulty({"function": CONT_RX, "kind": "fail", "result": 7, "nth": 1})
    server = Serve("--profile", profile)
    pressed = server.call(1, "press", page="Continuous RX", button="Start")["result"]
    assert len(pressed["boxes"]) == 1
    told = [note["method"] for note in server.notes]
    assert told.count("busy") == 2 and "box" in told and "status" in told
    assert server.end() == 0


def test_requests_are_carried_out_in_order(serve):
    for number, power in enumerate(("min", "max", "mid")):
        serve.send(
            json.dumps(
                {
                    "jsonrpc": "2.0",
                    "id": number,
                    "method": "set",
                    "params": {"page": "RSRP Normal Mode", "name": "reportPeriod", "value": power},
                }
            )
        )
    assert [serve.answer()["id"] for _ in range(3)] == [0, 1, 2]
    got = serve.call(3, "get", page="RSRP Normal Mode", name="request.group1.reportPeriod")
    assert got["result"]["values"] == ["5150"]


def test_rf_off_and_close_do_not_wait_their_turn(journal):
    server = Serve("--profile", "handset")
    server.call(1, "press", page="Continuous RX", button="Start")
    server.send('{"jsonrpc": "2.0", "id": 2, "method": "wait", "params": {"time": 600}}')
    server.send('{"jsonrpc": "2.0", "id": 3, "method": "describe"}')
    assert server.call(4, "rfOff")["result"] == {}
    assert journal.is_idle()
    server.send('{"jsonrpc": "2.0", "id": 5, "method": "close"}')
    answers = {}
    while len(answers) < 3:
        answer = server.answer()
        answers[answer["id"]] = answer
    assert answers[5]["result"] == {}
    assert answers[2]["error"]["code"] == 4
    assert answers[3]["error"]["code"] == 4
    assert server.child.wait(timeout=60) == 0




def test_late_press_is_an_error_as_data(faulty):
    profile = faulty({"function": CONT_RX, "kind": "delay", "ms": 400})
    server = Serve("--profile", profile)
    late = server.call(1, "press", page="Continuous RX", button="Start", timeout=0.05)
    assert late["error"]["code"] == 3
    assert server.call(2, "wait")["result"] == {}
    assert server.end() == 0


def test_closed_input_is_a_safe_end(journal):
    server = Serve("--profile", "handset")
    server.call(1, "press", page="Continuous RX", button="Start")
    assert server.end() == 0
    assert CONT_RX in journal.functions() and journal.is_idle()


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT])
def test_signal_is_a_safe_end(journal, number):
    server = Serve("--profile", "handset")
    server.call(1, "press", page="Continuous RX", button="Start")
    server.child.send_signal(number)
    assert server.child.wait(timeout=60) == 128 + number
    assert journal.is_idle()


CLIENT = """
import sys, time
sys.path.insert(0, {package!r})
import quorlin
with quorlin.bench(profile="handset") as bench:
    print(bench.pid, flush=True)
    page = bench.page("Continuous RX")
    while True:
        page.press("Start")
        page.press("Stop")
"""


def wait_gone(pid):
    deadline = time.monotonic() + 60
    while time.monotonic() < deadline:
        try:
            os.kill(pid, 0)
        except ProcessLookupError:
            return True
        time.sleep(0.02)
    return False


@pytest.mark.parametrize("round", range(int(os.environ.get("QUORLIN_KILLS", "6"))))
def test_killed_interpreter_leaves_the_dut_idle(journal, round):
    chance = random.Random(round)
    number = chance.choice([signal.SIGKILL, signal.SIGTERM, signal.SIGINT])
    client = subprocess.Popen(
        [sys.executable, "-c", CLIENT.format(package=PACKAGE)],
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
    )
    pid = int(client.stdout.readline())
    time.sleep(chance.random() * 0.3)
    client.send_signal(number)
    client.wait(timeout=60)
    assert wait_gone(pid)
    assert journal.is_idle()
