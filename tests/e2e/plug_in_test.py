"""What is done once for each plug-in, by the real program, whatever the network does meanwhile.

Usage: plug_in_test.py [unittest options] PROGRAM MODEM_SIMULATOR SETUP_PROGRAM
Exit status 77: no network namespaces can be made here.
"""

import pathlib
import subprocess
import sys
import unittest

import companion_test
from plugged_modem import enter_namespace, ip, write

BUS_SETTINGS = pathlib.Path(__file__).parents[2] / "simulator/session-bus.conf"
ADDRESS = "02:00:00:00:00:01"


class PlugInTest(companion_test.Companion):
    def setUp(self):
        self.make_computer()
        write(self.folder / "config/tarvo/Config.plist", companion_test.plistlib.dumps(self.settings).decode())
        self.pages = self.folder / "pages"
        opener = self.folder / "bin/xdg-open"
        write(opener, f'#!/bin/sh\necho "$1 $TARVO_HAND_OVER" >> "{self.pages}"\n')
        opener.chmod(0o700)
        self.modem.tell("set web-start=on")

    def opened(self):
        return self.pages.read_text().splitlines() if self.pages.exists() else []

    def examined(self):
        return sum("pc_apn_list_query" in r["target"] for r in self.modem.requests())

    def plug(self, times, address=None):
        self.modem.plug("enx1", address=address)
        self.until_ready(self.modem, "enx1", times=times)

    def until_polled(self):
        """A whole pass has gone by."""
        polls = len(self.modem.polls())
        self.until(lambda: len(self.modem.polls()) > polls + 2)

    def test_reports_of_the_same_interface_repeat_nothing(self):
        self.start_program()
        self.plug(times=1)
        self.until(lambda: self.opened() and self.examined())
        changes = ("addr add 192.168.8.101/24 dev enx1", "addr del 192.168.8.101/24 dev enx1",
                   "route replace default via 192.168.8.2 dev enx1 metric 100",
                   "route replace default via 192.168.8.1 dev enx1 metric 100")
        for change in changes:
            ready = self.log.count("ECMReady")
            ip(change)
            self.until(lambda: self.log.count("ECMReady") > ready)
        self.until_polled()
        self.assertEqual((self.opened(), self.examined()), (["http://192.168.8.1 "], 1))

    def test_a_device_that_comes_again_and_again_opens_one_page(self):
        self.start_program()
        for times in range(1, 4):
            self.plug(times, ADDRESS)
            self.until_polled()
            self.modem.unplug("enx1")
            self.until(lambda: self.log.count("DeviceRemoved,stopGetModemStatus") == times)
        self.assertEqual((len(self.opened()), self.examined()), (1, 3))
        self.plug(4, "02:00:00:00:00:02")
        self.until(lambda: len(self.opened()) == 2)

    def test_a_program_that_starts_over_repeats_nothing(self):
        bus = subprocess.Popen(["dbus-daemon", f"--config-file={BUS_SETTINGS}", "--nofork", "--print-address"],
                               stdout=subprocess.PIPE, text=True)
        self.addCleanup(bus.stdout.close)
        self.addCleanup(bus.wait)
        self.addCleanup(bus.kill)
        address = bus.stdout.readline().strip()
        self.start_program(session_bus=address)
        self.plug(times=1)
        self.until(lambda: self.opened() and self.examined())
        self.until_polled()
        subprocess.run([sys.argv[3], "exclude", "1234:1"], env=self.environment, stdout=subprocess.DEVNULL, check=True)
        self.until_ready(self.modem, "enx1", times=2)
        self.until_polled()
        self.assertEqual((self.opened(), self.examined()), (["http://192.168.8.1 "], 1))
        self.assertEqual(self.log.count("Tarvo init success"), 2)


if __name__ == "__main__":
    enter_namespace()
    sys.argv[1:], options = sys.argv[-3:], sys.argv[1:-3]
    unittest.main(argv=[sys.argv[0], *options])
