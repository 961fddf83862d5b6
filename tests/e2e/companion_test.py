"""Runs the real program in a network namespace, with modems that are links to namespaces of their own.

Usage: companion_test.py [unittest options] PROGRAM MODEM_SIMULATOR
Exit status 77: no network namespaces can be made here.
"""

import os
import pathlib
import plistlib
import re
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import urllib.parse

import surroundings  # first: what is started from here on sees nothing of the user's

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "simulator"))
from plugged_modem import VENDOR, Modem, UsbDevices, enter_namespace, ip, remove_links, write  # noqa: E402

CONFIG = {"device_info": {"vendor_ids": [str(VENDOR)]}, "AddRefererIntoHttpHeader": True,
          "IsDisplayNetStatusInToolBar": True, "NeedDisplayWhenDeviceRemoved": True}


def bus_address(path):
    """The address of the bus at a path, escaped as the D-Bus specification says."""
    return "unix:path=" + urllib.parse.quote(str(path)).replace("~", "%7E")


class Companion(unittest.TestCase):
    """Starts, awaits and ends the program; has no tests of its own."""

    settings = CONFIG
    simulator = property(lambda self: sys.argv[2])
    executable = property(lambda self: sys.argv[1])
    command = ["tarvo"]

    def setUp(self):
        self.make_computer()
        write(self.folder / "config/tarvo/Config.plist", plistlib.dumps(self.settings).decode())
        self.start_program()

    def make_computer(self):
        """A folder, made-up USB devices and a modem, of which nothing is left for the next test."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.usb = UsbDevices(self.folder / "devices")
        self.modem = Modem(self, "192.168.8")
        self.addCleanup(remove_links)

    def open_bus(self):
        """A bus that says nothing. @return its address"""
        mute_bus = socket.socket(socket.AF_UNIX)
        self.addCleanup(mute_bus.close)
        mute_bus.bind(str(self.folder / "bus"))
        mute_bus.listen()
        return bus_address(self.folder / "bus")

    def start_program(self, session_bus=None):
        bus = self.open_bus()
        self.environment = surroundings.environment(self.folder, self.usb, session_bus or bus) | {
            "DBUS_SYSTEM_BUS_ADDRESS": bus, "SSLKEYLOGFILE": str(self.folder / "keys")}
        # By a name that is no path: to start over, the program must know by itself where it is.
        self.program = subprocess.Popen(self.command, executable=self.executable, env=self.environment,
                                        stderr=subprocess.PIPE, text=True)
        self.log = []
        reader = threading.Thread(target=lambda: self.log.extend(self.read_lines()))
        reader.start()
        self.addCleanup(self.program.stderr.close)
        self.addCleanup(reader.join)
        self.addCleanup(self.program.kill)
        self.until(lambda: "Tarvo init success" in self.log)

    def read_lines(self):
        for line in self.program.stderr:
            yield line.rstrip("\n")

    def tearDown(self):
        self.assertIsNone(self.program.poll(), "the program ended by itself")
        self.quit()

    def quit(self):
        """SIGTERM, however often, ends the program, long before a request or a bus that gives no answer would."""
        deadline = time.monotonic() + 2
        while self.program.poll() is None and time.monotonic() < deadline:
            self.program.terminate()
            time.sleep(0.001)
        self.assertEqual(self.program.poll(), 0, "\n".join(self.log))

    def until(self, condition, seconds=30):
        deadline = time.monotonic() + seconds
        while not condition():
            if time.monotonic() > deadline:
                self.fail("waited in vain; the log:\n" + "\n".join(self.log))
            time.sleep(0.02)

    def until_ready(self, modem, name, times=1):
        self.until(lambda: self.log.count("ECMReady") >= times)
        seen = len(modem.polls())
        self.until(lambda: len(modem.polls()) > seen)
        self.assertIn(name, self.log)

    def descriptors(self):
        return len(os.listdir(f"/proc/{self.program.pid}/fd"))

    def has_loaded(self, library):
        return library in pathlib.Path(f"/proc/{self.program.pid}/maps").read_text()

    def memory(self):
        """What was resident at most, in KiB."""
        status = pathlib.Path(f"/proc/{self.program.pid}/status").read_text()
        return int(status.split("VmHWM:")[1].split()[0])


class CompanionTest(Companion):
    def test_polls_once_a_second_until_unplugged_and_again_when_plugged_in(self):
        self.assertFalse(self.has_loaded("libcurl"), "nobody needs it yet")
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        self.assertFalse((self.folder / "keys").exists(), "no TLS is ever spoken")
        self.until(lambda: len(self.modem.polls()) >= 6)
        polls = self.modem.polls()
        self.assertGreater(polls[5] - polls[0], 4)  # the first may be late on a busy machine
        self.assertIn("192.168.8.1", self.log)

        self.modem.unplug("enx1")
        self.until(lambda: "DeviceRemoved,stopGetModemStatus" in self.log)
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1", times=2)

    def test_loads_what_requests_take_while_the_modem_has_no_address(self):
        self.usb.add("enx2", 9999)
        ip("link add enx2 index 9999 type veth peer name far", "link set enx2 up")
        self.until(lambda: self.has_loaded("libcurl"))
        self.assertNotIn("ECMReady", self.log)

    def test_a_link_that_went_down_is_ready_again_when_it_has_a_router(self):
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        self.until(lambda: any(line.startswith("default_apn: ") for line in self.log))
        ip("link set enx1 down")
        self.until(lambda: "data is nil" in self.log)
        self.modem.bring_up("enx1")
        self.until_ready(self.modem, "enx1", times=2)
        self.assertNotIn("DeviceRemoved,stopGetModemStatus", self.log)

    def test_a_rename_is_no_removal(self):
        foreign = Modem(self, "192.168.8")
        foreign.plug("enp1", usb=False, metric=1)
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        self.assertNotIn("usb0", self.log, "the name that the link had for a moment")
        self.modem.tell("fault refuse")
        ip("link set enx1 down")
        self.usb.rename("enx1", "enx2")
        ip("link set enx1 name enx2")
        failures = self.log.count("data is nil")
        self.until(lambda: self.log.count("data is nil") > failures)
        self.modem.tell("fault none")
        self.modem.bring_up("enx2")
        self.until_ready(self.modem, "enx2", times=2)
        self.assertNotIn("DeviceRemoved,stopGetModemStatus", self.log)
        self.assertEqual(foreign.record.read_text(), "")

    def test_a_second_modem_takes_over(self):
        second = Modem(self, "192.168.9")
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        second.plug("enx2", metric=200)
        self.until_ready(second, "enx2", times=2)
        self.assertIn("192.168.9.1", self.log)
        second.unplug("enx2")
        self.until_ready(self.modem, "enx1", times=3)

    def test_a_foreign_router_of_the_same_address_is_never_spoken_to(self):
        foreign = Modem(self, "192.168.8")
        foreign.plug("enp1", usb=False, metric=1)
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        self.until(lambda: len(self.modem.polls()) >= 3)
        self.modem.unplug("enx1")
        self.until(lambda: "DeviceRemoved,stopGetModemStatus" in self.log)
        self.assertEqual(foreign.record.read_text(), "")
        self.assertNotIn("enp1", self.log)

    def test_survives_more_events_than_the_socket_holds(self):
        self.program.send_signal(signal.SIGSTOP)
        ip(*(f"link add a{i} group 9 type veth peer name b{i}" for i in range(1000)))
        self.modem.plug("enx1")
        self.program.send_signal(signal.SIGCONT)
        self.until_ready(self.modem, "enx1")
        self.assertIn("network state: events were lost, reading everything again", self.log)
        ip("link del group 9")
        self.modem.unplug("enx1")
        self.until(lambda: "DeviceRemoved,stopGetModemStatus" in self.log)

    def test_a_hundred_quick_plugs_leave_nothing_behind(self):
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        before = self.descriptors()
        for _ in range(100):
            self.modem.unplug("enx1")
            self.modem.plug("enx1")
        seen = len(self.modem.polls())
        self.until(lambda: len(self.modem.polls()) > seen + 2)
        self.modem.unplug("enx1")
        self.until(lambda: self.log[-1] == "DeviceRemoved,stopGetModemStatus")
        self.until(lambda: self.descriptors() <= before)

    def test_a_modem_that_answers_nonsense_costs_little_and_is_heard_again(self):
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        before = self.memory()
        for fault in ("half", "endless", "endless-head", "bytes", "close", "close-kept", "refuse"):
            with self.subTest(fault):
                self.modem.tell(f"fault {fault}")
                time.sleep(2.5)  # a pass or two
                self.assertLess(self.memory(), before + 32 * 1024)
                self.modem.tell("fault none")
                seen = len(self.modem.polls())
                self.until(lambda: len(self.modem.polls()) > seen + 2)

    def test_starts_with_each_example_of_the_shipped_settings(self):
        shipped = (pathlib.Path(__file__).parents[2] / "resources/Config.plist").read_text()
        comment = re.compile(r"<!--\s*(<key>.*?)-->", re.DOTALL)
        examples = comment.findall(shipped)
        self.assertEqual(len(examples), 5)
        for taken in [*([each] for each in examples), examples]:
            with self.subTest(taken):
                settings = comment.sub(lambda found, taken=taken: found[1] if found[1] in taken else "", shipped)
                self.quit()
                (self.folder / "bus").unlink()
                write(self.folder / "config/tarvo/Config.plist", settings)
                self.start_program()

    def test_says_that_there_is_no_display(self):
        program = subprocess.run([sys.argv[1]], env=self.environment | {"QT_QPA_PLATFORM": "xcb", "DISPLAY": ""},
                                 stderr=subprocess.PIPE, text=True, check=False)
        self.assertIn("\ntarvo: no display: ", program.stderr)
        self.assertEqual(program.returncode, 1)

    def test_quits_while_the_modem_does_not_answer(self):
        self.modem.tell("fault silent")
        self.modem.plug("enx1")
        self.until(lambda: self.modem.polls())
        (self.folder / "config/fontconfig").mkdir()
        os.mkfifo(self.folder / "config/fontconfig/fonts.conf")  # which never ends for who looks for fonts only now
        # The end of every test makes the program quit.


if __name__ == "__main__":
    enter_namespace()
    sys.argv[1:], options = sys.argv[-2:], sys.argv[1:-2]
    unittest.main(argv=[sys.argv[0], *options])
