"""Runs the installed program on a virtual display with a tray and a session bus, with a modem in another namespace.

Usage: installed_test.py PROGRAM MODEM_SIMULATOR
Exit status 77: no network namespaces can be made here.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "e2e"))
import companion_test  # noqa: E402

DARK, GREEN = bytes.fromhex("1d242c"), bytes.fromhex("2fb65a")  # of the icon's outline, and of its body when on line


class InstalledTest(companion_test.CompanionTest):
    def start_program(self):
        """The session that the program is started in; what it reads is what is installed and set up for everybody."""
        display = self.start("Xvfb", "-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp")
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address")
        self.environment = {
            "PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": str(self.folder), "XDG_RUNTIME_DIR": str(self.folder),
            "DISPLAY": ":" + display.stdout.readline().strip(), "DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip(),
            "LD_PRELOAD": "libumockdev-preload.so.0", "UMOCKDEV_DIR": str(self.usb.root)}
        self.start(*(["trayer", "--height", "24"] if shutil.which("trayer") else ["stalonetray", "-i", "24"]))
        self.log = []
        with (self.folder / "log").open("w") as log:
            self.program = self.start(sys.argv[1], stderr=log)
        self.until(lambda: "Tarvo init success" in self.read_log())

    def start(self, *command, **streams):
        environment = getattr(self, "environment", None)
        process = subprocess.Popen(command, env=environment, stdout=subprocess.PIPE, text=True, **streams)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.wait, 10)
        self.addCleanup(process.terminate)
        return process

    def read_log(self):
        self.log = (self.folder / "log").read_text().splitlines()
        return self.log

    def pixels(self, colour):
        shot = ["import", "-window", "root", "-depth", "8", "rgb:-"]
        screen = subprocess.check_output(shot, env=self.environment | {"LD_PRELOAD": ""})
        return sum(screen[i:i + 3] == colour for i in range(0, len(screen), 3))

    def requests(self):
        return [json.loads(line) for line in self.modem.record.read_text().splitlines()]

    def test_shows_the_modem_and_sends_it_a_command(self):
        self.assertIn("settings: /etc/xdg/tarvo/Config.plist", self.log)
        self.until(lambda: self.pixels(DARK) > 60)
        self.assertEqual(self.pixels(GREEN), 0)
        self.modem.plug("enx1")
        self.until(lambda: self.pixels(GREEN) > 60)

        self.until(lambda: any(request["method"] == "POST" for request in self.requests()))
        posted = next(request for request in self.requests() if request["method"] == "POST")
        self.assertEqual(posted["target"], "/goform/goform_set_cmd_process?")
        self.assertRegex(posted["body"], "^goformId=SET_DEFAULT_APN&index=0&AD=[0-9a-f]{32}$")
        self.until(lambda: "set default apn success!" in self.read_log())  # for which the hash must be right

        second = subprocess.run(sys.argv[1], env=self.environment, stderr=subprocess.PIPE, text=True, timeout=10, check=False)
        self.assertTrue(second.returncode == 0 or "running already" in second.stderr, second)


if __name__ == "__main__":
    companion_test.enter_namespace()
    unittest.main(argv=[sys.argv[0], "-v", "InstalledTest.test_shows_the_modem_and_sends_it_a_command"])
