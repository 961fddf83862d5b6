"""Moves every part of the programs once while valgrind watches: nothing is read that was never set, or that is gone.

Usage: memcheck_test.py [unittest options] PROGRAM MODEM_SIMULATOR SETUP_PROGRAM
Exit status 77: no network namespaces can be made here.
"""

import pathlib
import subprocess
import sys
import unittest

import companion_test
from plugged_modem import enter_namespace

ERROR = 99
VALGRIND = ["valgrind", "--quiet", f"--error-exitcode={ERROR}", "--track-origins=yes", "--child-silent-after-fork=yes",
            f"--suppressions={pathlib.Path(__file__).parent / 'valgrind.supp'}"]


class MemcheckTest(companion_test.Companion):
    settings = companion_test.CONFIG | {
        "NeedCheckFotaUpdate": True, "WebDefaultApnProfileName": "Internet", "WebUISmsPage": "http://%@/sms",
        "OperatorHomePage": "http://%@/", "DateLimitHomePage": "http://%@/limit", "FotaNewVersionHomePage": "http://%@/new"}
    executable = None
    command = property(lambda self: [*VALGRIND, sys.argv[1]])

    def until(self, condition, seconds=15):
        super().until(condition, 10 * seconds)

    def quit(self):
        self.program.terminate()
        self.assertEqual(self.program.wait(120), 0, "\n".join(self.log))

    def test_from_start_to_end(self):
        for news in ("web-start=on", "default-profile=Nowhere", "firmware=version_has_new_critical_software", "month-limit=1",
                     "month-threshold=1", "month-received=99999999999", "three-day-limit=1", "three-day-received=99999999999"):
            self.modem.tell("set " + news)
        for times in (1, 2):
            self.modem.plug("enx1")
            self.until_ready(self.modem, "enx1", times)
            polls = len(self.modem.polls())
            self.until(lambda polls=polls: len(self.modem.polls()) > polls + 20)  # a sequence that tells four pieces of news
            self.modem.unplug("enx1")
            self.until(lambda times=times: self.log.count("DeviceRemoved,stopGetModemStatus") == times)
        self.assertIn("PC_APN_READY_SET success!", self.log)

    def test_setup(self):
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        for arguments in (("list",), ("check",), ("exclude", "1234:1"), ("use", "19d3:5678"), ("show",), ("reset",)):
            with self.subTest(arguments):
                run = subprocess.run([*VALGRIND, sys.argv[3], *arguments], env=self.environment, stdout=subprocess.PIPE,
                                     stderr=subprocess.PIPE, text=True, timeout=200, check=False)
                self.assertNotEqual(run.returncode, ERROR, run.stderr)


if __name__ == "__main__":
    enter_namespace()
    sys.argv[1:], options = sys.argv[-3:], sys.argv[1:-3]
    unittest.main(argv=[sys.argv[0], *options])
