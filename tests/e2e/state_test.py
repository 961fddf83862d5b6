"""What programs read of the companion and ask of it: on the session bus, and by its own commands.

Usage: state_test.py [unittest options] PROGRAM MODEM_SIMULATOR BUS_SIMULATOR
Exit status 77: no network namespaces can be made here.
"""

import json
import pathlib
import re
import subprocess
import sys
import threading
import unittest
import xml.etree.ElementTree

import companion_test
import plugged_modem
from faults_test import Buses
from plugged_modem import enter_namespace, write

plugged_modem.VENDOR = 0x19D3  # not the example that the shipped settings name

ROOT = pathlib.Path(__file__).parents[2]
GIB = 1 << 30
XML = xml.etree.ElementTree.parse(ROOT / "resources/bus/io.github.tarvo.Tarvo1.xml").getroot()
PROPERTIES = {p.get("name"): p.get("type") for p in XML.iter("property")}


# Runs a command as in a sandbox: below a root that has a file that says so.
SANDBOX = ["unshare", "--mount", "sh", "-ec", """mount -t tmpfs none /mnt
for folder in /*; do [ -d "$folder" ] && [ "$folder" != /mnt ] && mkdir "/mnt$folder" && mount --rbind "$folder" "/mnt$folder"; done
touch /mnt/.flatpak-info
exec unshare --root=/mnt "$@" """, "sandbox"]


class StateTest(companion_test.Companion):
    settings = companion_test.CONFIG | {"NeedCheckFotaUpdate": True, "device_info": {"vendor_ids": [str(0x19D3)]}}
    buses = None

    def open_bus(self):
        self.buses = self.buses or Buses(self)
        return self.buses.address

    def setUp(self):
        self.make_computer()
        write(self.folder / "config/tarvo/Config.plist", companion_test.plistlib.dumps(self.settings).decode())
        opener = self.folder / "bin/xdg-open"
        write(opener, f'#!/bin/sh\necho "$1" >> "{self.folder}/pages"\n')
        opener.chmod(0o700)

    def tearDown(self):
        pass  # the test ends the companion

    def run_command(self, *arguments, status=0):
        run = subprocess.run([self.executable, *arguments], env=self.environment, capture_output=True, text=True, timeout=30,
                             check=False)
        self.assertEqual(run.returncode, status, run)
        return run.stdout

    def state(self):
        run = subprocess.run([self.executable, "status", "--json"], env=self.environment, capture_output=True, text=True,
                             timeout=30, check=False)
        return json.loads(run.stdout)

    def bus(self, method, *arguments, status=0, sandbox=()):
        """A client that has nothing but gdbus."""
        run = subprocess.run([*sandbox, "gdbus", "call", "--session", "--dest", "io.github.tarvo.Tarvo", "--object-path",
                              "/io/github/tarvo/Tarvo", "--method", method, *arguments],
                             env=self.environment | {"LD_PRELOAD": ""}, capture_output=True, text=True, timeout=30, check=False)
        self.assertEqual(run.returncode, status, run)
        return run.stdout.strip() or run.stderr

    def read(self, name):
        return self.bus("org.freedesktop.DBus.Properties.Get", "io.github.tarvo.Tarvo1", name)

    def until_state(self, word, **others):
        expected = {"State": word} | others
        try:
            self.until(lambda: self.state().items() >= expected.items())
        except AssertionError:
            self.fail(f"{expected} has not come: {self.state()}")
        self.assertEqual(self.read("State"), f"(<'{word}'>,)")

    def follow(self, *options):
        """@return the lines that are printed from now on, as they come, and the process"""
        process = subprocess.Popen([self.executable, "status", "--follow", *options], env=self.environment,
                                   stdout=subprocess.PIPE, text=True)
        lines = []
        reader = threading.Thread(target=lambda: lines.extend(iter(process.stdout.readline, "")))
        reader.start()
        self.addCleanup(process.stdout.close)
        self.addCleanup(reader.join)
        self.addCleanup(process.kill)
        return lines, process

    def test_tells_programs_how_things_stand(self):
        self.environment = companion_test.surroundings.environment(self.folder, self.usb, self.open_bus())
        self.assertEqual(json.loads(self.run_command("status", "--json", status=3)), {"State": "not-running"})
        for arguments in (["quit"], ["show"], ["open", "modem"]):
            self.run_command(*arguments, status=3)
        for arguments in (["status", "--xml"], ["open"], ["open", "elsewhere"], ["start"]):
            self.run_command(*arguments, status=2)
        waiting, bar = self.follow("--wait", "--format", "waybar")

        self.start_program(self.buses.address)
        lines, follower = self.follow()
        self.until_state("no-modem", MonthUsed=None, Device=None, Gateway="")
        self.assertEqual(set(self.state()), set(PROPERTIES))
        self.assertIn("fix-me", self.read("SettingsFile").replace(str(self.folder), "fix-me"))

        for condition in ("ppp-status=ppp_connecting", "firmware=version_has_new_critical_software"):
            self.modem.tell("set " + condition)
        self.modem.tell(f"set month-received={4 * GIB}")
        self.modem.plug("enx1")
        self.until_state("connecting")
        self.modem.tell("set ppp-status=ppp_connected")
        self.until_state("connected", MonthUsed=4 * GIB, MonthLimit=10 * GIB, MonthReminder=8 * GIB, ThreeDayLimit=3 * GIB,
                         FirmwareOffered=True, SimState="unknown", Roaming=False, Gateway="192.168.8.1",
                         IconName="tarvo-newVersion")
        self.assertEqual(self.state()["Device"]["Interface"], "enx1")
        self.assertEqual(self.read("MonthUsed"), "(<{'Value': <uint64 4294967296>}>,)")
        self.assertLess(self.state()["LastAnswer"], 10)
        self.assertEqual(self.run_command("status"), self.state()["Summary"] + "\n")
        self.check_pages()

        self.modem.tell(f"set month-received={11 * GIB}")
        self.until_state("connected", MonthUsed=11 * GIB)
        self.modem.tell("set main-state=modem_waitpin")
        self.until_state("sim", SimState="needs-pin")
        self.until(lambda: {news["Kind"] for news in self.state()["News"]} == {"firmware", "limit"})
        self.assertEqual(json.loads(waiting[-1])["class"], ["sim", "firmware", "over-limit"])
        self.modem.tell("set main-state=modem_init_complete")
        self.modem.tell("fault refuse")
        self.until_state("no-answer", MonthUsed=None)
        self.modem.tell("fault none")
        self.until_state("connected")
        self.assertEqual(self.buses.tell("sleep"), "ok")
        self.until_state("asleep")
        self.buses.tell("wake")
        self.until_state("connected")
        self.modem.unplug("enx1")
        self.until_state("no-modem", Device=None)

        self.run_command("show")
        self.run_command("quit")
        self.assertEqual((self.program.wait(10), follower.wait(10)), (0, 3))
        self.until(lambda: json.loads(waiting[-1])["alt"] == "not-running")
        self.assertIsNone(bar.poll(), "it waits for the next one")
        self.assertEqual([line for line, next_line in zip(lines, lines[1:]) if line == next_line], [], "each line is news")

    def check_pages(self):
        pages = self.folder / "pages"
        self.run_command("open", "modem")
        self.until(lambda: pages.exists() and pages.read_text() == "http://192.168.8.1\n")
        self.assertIn("cannot be done", self.bus("io.github.tarvo.Tarvo1.OpenPage", "modem", status=1), "so soon")
        self.assertIn("UnknownMethod", self.bus("io.github.tarvo.Tarvo1.Restart", status=1))
        self.assertIn("AccessDenied", self.bus("io.github.tarvo.Tarvo1.Quit", status=1, sandbox=SANDBOX))
        self.assertIn("connected", self.bus("org.freedesktop.DBus.Properties.GetAll", "io.github.tarvo.Tarvo1", sandbox=SANDBOX))

    def test_says_only_what_has_changed(self):
        self.start_program(self.open_bus())
        self.modem.tell("set traffic=1048576")
        self.modem.plug("enx1")
        self.until_state("connected")
        monitor = subprocess.Popen(["gdbus", "monitor", "--session", "--dest", "io.github.tarvo.Tarvo"],
                                   env=self.environment | {"LD_PRELOAD": ""}, stdout=subprocess.PIPE, text=True)
        self.addCleanup(monitor.stdout.close)
        self.addCleanup(monitor.wait)
        self.addCleanup(monitor.kill)
        told = []
        for line in iter(monitor.stdout.readline, ""):
            if "PropertiesChanged" in line:
                told.append(set(re.findall(r"'(\w+)': <", line)) - {"Value"})
            if len(told) == 4:
                break
        self.assertLessEqual(set.union(*told[1:]), {"MonthUsed", "ThreeDayUsed", "Summary"}, told)
        self.quit()

    def test_the_manual_agrees_with_the_interface(self):
        manual = (ROOT / "docs/tarvo-dbus.7").read_text()
        self.assertEqual(dict(re.findall(r"^([A-Z]\w+)\t(\S+)\tT\{$", manual, re.M)), PROPERTIES)
        self.assertEqual(re.findall(r"^(\w+)\(\w*\)\tT\{$", manual, re.M), [m.get("name") for m in XML.iter("method")])
        words = set(re.findall(r'return u"([a-z-]+)"_s', (ROOT / "status/StateReport.cpp").read_text()))
        self.assertEqual([word for word in words if word not in manual], [])

    def test_examples_work_as_they_are(self):
        self.start_program(self.open_bus())
        self.modem.plug("enx1")
        self.until_state("connected")
        tarvo = self.folder / "bin/tarvo"
        tarvo.symlink_to(pathlib.Path(self.executable).resolve())
        examples = ROOT / "examples"
        waybar = json.loads((examples / "waybar/config").read_text())["custom/tarvo"]
        polybar = (examples / "polybar/config.ini").read_text()
        commands = [waybar["exec"].replace("--follow", ""), re.search("^exec = (.*) --follow", polybar, re.M)[1],
                    re.search(r"\$\{execi 10 (.*?)\}", (examples / "conky/conky.conf").read_text())[1],
                    f'"{examples}/prometheus/tarvo-textfile"']
        outputs = [subprocess.run(["sh", "-c", command], env=self.environment, capture_output=True, text=True, check=True,
                                  timeout=30).stdout for command in commands]
        self.assertEqual(json.loads(outputs[0])["alt"], "connected")
        self.assertTrue(outputs[1] == outputs[2] == self.state()["Summary"] + "\n", outputs)
        self.assertIn("tarvo_connected 1\n", outputs[3])
        self.quit()


if __name__ == "__main__":
    enter_namespace()
    sys.argv[1:], options = sys.argv[-3:], sys.argv[1:-3]
    unittest.main(argv=[sys.argv[0], *options])
