"""Goes the whole way from a modem that nobody knows to a companion that polls it, with the real programs.

Usage: setup_test.py [unittest options] PROGRAM MODEM_SIMULATOR SETUP_PROGRAM
Exit status 77: no network namespaces can be made here.
"""

import json
import os
import pathlib
import socket
import stat
import subprocess
import sys
import time
import unittest

import companion_test
import plugged_modem
import surroundings
from plugged_modem import Modem

plugged_modem.VENDOR = 0x19D3  # not the example that the shipped settings name
DEVICE = "19d3:5678"


class SetupTest(companion_test.Companion):
    def setUp(self):
        self.make_computer()
        self.config = self.folder / "config/tarvo/Config.plist"

    def tearDown(self):
        pass  # not every test starts the companion

    def setup_program(self, *arguments, status=0, bus="unix:path=/nonexistent", libraries="", output=subprocess.PIPE,
                      language="en", **more):
        environment = surroundings.environment(self.folder, self.usb, bus) | {
            "LD_LIBRARY_PATH": libraries, "LANGUAGE": language} | more
        run = subprocess.run([sys.argv[3], *arguments], env=environment, stdout=output, stderr=subprocess.PIPE, text=True,
                             timeout=60, check=False)
        self.assertEqual(run.returncode, status, run)
        if arguments[0] != "check":
            self.assertEqual(bool(run.stderr), status != 0, run)
        return json.loads(run.stdout) if "--json" in arguments and status < 2 else run.stdout

    def marks(self, status=0, **options):
        checks = self.setup_program("check", "--json", status=status, **options)["checks"]
        return {check["id"]: check["mark"] for check in checks}

    def test_leads_from_an_unknown_modem_to_one_that_is_polled(self):
        foreign = Modem(self, "192.168.8")
        foreign.plug("enp1", usb=False, metric=1)
        self.modem.plug("enx1")
        device = self.setup_program("list", "--json")["devices"][0]
        expected = {"id": DEVICE, "interface": "enx1", "up": True, "addresses": ["192.168.8.100"],
                    "gateway": "192.168.8.1", "support": "unsupported", "modem": True}
        self.assertEqual(device, device | expected)
        self.assertEqual(self.marks(status=1)["settings"], "broken")

        self.setup_program("use", DEVICE)
        self.assertEqual(stat.S_IMODE(self.config.stat().st_mode), 0o600)
        marks = self.marks()
        self.assertEqual(list(marks.values()), ["ok"] * 11 + ["skipped"] + ["unknown"] * 4, marks)
        requests = [json.loads(line) for line in self.modem.record.read_text().splitlines()]
        self.assertEqual([(r["method"], r["target"].partition("cmd=")[2].partition(",")[0]) for r in requests],
                         [("GET", ""), ("GET", "ppp_status&multi_data=1")] * 2 + [("GET", "cr_version")])
        self.assertEqual(foreign.record.read_text(), "")

        self.start_program()
        self.until_ready(self.modem, "enx1")
        self.quit()

    def test_tells_when_the_companion_has_read_older_settings(self):
        config = pathlib.Path(__file__).parents[2] / "simulator/session-bus.conf"
        bus = subprocess.Popen(["dbus-daemon", f"--config-file={config}", "--nofork", "--print-address"],
                               stdout=subprocess.PIPE, text=True)
        self.addCleanup(bus.stdout.close)
        self.addCleanup(bus.wait)
        self.addCleanup(bus.kill)
        address = bus.stdout.readline().strip()
        self.setup_program("use", DEVICE)
        self.start_program(address)
        self.until(lambda: self.marks(status=1, bus=address)["companion"] == "ok")
        with self.config.open("a") as settings:
            settings.write("\n")
        self.assertEqual(self.marks(status=1, bus=address)["companion"], "broken")
        self.setup_program("exclude", "19d3:1", bus=address)  # has it start again, though no PATH leads to it
        self.until(lambda: self.marks(status=1, bus=address)["companion"] == "ok")
        self.assertEqual(pathlib.Path(f"/proc/{self.program.pid}/comm").read_text(), "tarvo\n")
        self.quit()

    def test_says_where_the_chain_is_broken(self):
        self.setup_program("use", DEVICE)
        self.assertEqual(self.marks(status=1)["device"], "broken")
        self.modem.plug("enx1")
        self.assertEqual(self.marks()["port"], "ok")
        (self.folder / "libcurl.so.4").touch()
        self.assertEqual(self.marks(status=1, libraries=str(self.folder))["port"], "broken", "a library that is none")
        self.modem.tell("fault refuse")
        self.assertEqual(self.marks(status=1)["port"], "broken")
        self.setup_program("exclude", DEVICE)
        self.assertIn("Left alone", self.setup_program("list"))
        self.assertEqual(self.marks(status=1)["device"], "broken")
        self.config.write_text("<plist>")
        self.setup_program("use", DEVICE, status=1)
        self.setup_program("use", DEVICE, "--force")
        self.assertIn("vendor_ids: [\"6611\"]", self.setup_program("show"))
        shown = self.setup_program("show", "--json")
        self.assertEqual(shown["path"], str(self.config))
        self.assertEqual(shown["settings"]["device_info"]["vendor_ids"], ["6611"])
        self.setup_program("reset")
        self.assertFalse(self.config.exists())

    def test_refuses_what_it_cannot_do(self):
        for arguments in ("use nonsense", f"use {DEVICE} --json", "exclude 1:1 --json", "reset --json", "--json", "show 1"):
            self.setup_program(*arguments.split(), status=2)
        for device in ("0:0", "ffff:ffff", "1234:5678"):
            self.setup_program("use", device, status=1)
            self.assertFalse(self.config.exists())
            self.setup_program("use", device, "--force")
            self.setup_program("reset")
        with open("/dev/full", "w", encoding="ascii") as full:
            for arguments in ("list", "--help"):
                self.setup_program(*arguments.split(), status=1, output=full)
        displays = "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"
        environment = {name: value for name, value in os.environ.items() if name not in displays}
        run = subprocess.run([sys.argv[3]], env=environment, stderr=subprocess.PIPE, text=True, timeout=60, check=False)
        self.assertEqual(run.returncode, 2, run)
        self.assertIn("no display", run.stderr)

    def test_speaks_one_language_at_a_time(self):
        self.assertIn("No device 19d3:1 is plugged in.", self.setup_program("use", "19d3:1"))
        self.modem.plug("enx1")
        self.assertNotIn("plugged in", self.setup_program("use", DEVICE))
        for arguments, english, german in (("list", "answers like a modem", "antwortet wie ein Modem"),
                                           ("use 19d3:2", "in force", "Die geltenden Einstellungen stehen in"),
                                           ("check", "In order", "In Ordnung")):
            self.assertIn(english, self.setup_program(*arguments.split()))
            output = self.setup_program(*arguments.split(), language="de")
            self.assertIn(german, output)
            self.assertNotIn(english, output)

    @unittest.skipUnless(os.stat("/").st_uid == os.geteuid() == 0, "only root can be refused")
    def test_gives_a_user_no_file_of_roots(self):
        def refused(**more):
            self.setup_program("use", DEVICE, status=1, **more)
            self.assertEqual(list(self.config.parent.glob("*")), there)

        there = []
        refused(SUDO_USER="anna")
        os.chown(self.folder, 1234, 1234)
        refused()
        os.chown(self.folder, 0, 0)
        self.folder.chmod(0o777)
        refused()
        self.folder.chmod(0o700)
        self.config.parent.mkdir(parents=True)
        self.config.symlink_to(self.folder / "elsewhere")
        there = [self.config]
        refused()
        self.assertFalse((self.folder / "elsewhere").exists())
        self.config.unlink()
        self.setup_program("use", DEVICE)

    def test_writes_the_settings_of_all_users(self):
        script = f'''mount -t tmpfs -o mode=755 none /etc/xdg && umask 077 && "$0" --system use {DEVICE} && cd /etc/xdg/tarvo &&
                     "$0" --system use 19d4:1 --force && stat -c %a . Config.plist && cat Config.plist &&
                     "$0" --system reset && ls'''
        run = subprocess.run(["unshare", "--mount", "sh", "-c", script, os.path.abspath(sys.argv[3])], stdout=subprocess.PIPE, text=True,
                             env={"PATH": os.environ["PATH"], "HOME": str(self.folder), "SUDO_USER": "anna"}, check=True)
        for expected in ("in /etc/xdg/tarvo/Config.plist.\n", "\n755\n644\n", "6611</string>", "6612</string>"):
            self.assertIn(expected, run.stdout)
        self.assertEqual(run.stdout.splitlines()[-1], "Config.plist.bak")
        for command in ("list", "check", "show"):
            self.setup_program("--system", command, status=2)

    def test_does_not_wait_for_a_bus_that_says_nothing(self):
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(str(self.folder / "bus"))
            silent.listen()
            begin = time.monotonic()
            self.assertEqual(self.marks(status=1, bus=companion_test.bus_address(self.folder / "bus"))["companion"], "unknown")
            self.assertLess(time.monotonic() - begin, 12)


if __name__ == "__main__":
    plugged_modem.enter_namespace()
    sys.argv[1:], options = sys.argv[-3:], sys.argv[1:-3]
    unittest.main(argv=[sys.argv[0], *options])
