"""Modems that misbehave, and sleep and the program's end at any moment, each group in namespaces of its own.

Usage: faults_test.py [unittest options] PROGRAM MODEM_SIMULATOR BUS_SIMULATOR
Without options all tests run beside each other. TARVO_TEST_SEED repeats the moments of an earlier run.
Exit status 77: no network namespaces can be made here.
"""

import concurrent.futures
import contextlib
import os
import pathlib
import random
import statistics
import subprocess
import sys
import time
import unittest

import companion_test
from plugged_modem import enter_namespace, ip

# What a request of each kind holds, and no other.
KINDS = {"page": "logo_data.asp", "list": "pc_apn_list_query", "session": "RD&multi_data", "set": "goform_set_cmd",
         "access_point": "cmd=default_apn", "firmware": "dm_find_package"}
STALLS = ("silent", "drip")
QUICK = ("half", "endless", "endless-head", "bytes", "close", "reset", "redirect=http://192.168.9.1/", "redirect=/again?{part}")
DONE = "PC_APN_READY_SET success!"  # the modem has taken its access points
SEED = int(os.environ.get("TARVO_TEST_SEED", random.randrange(1 << 32)))
BUS_SETTINGS = pathlib.Path(__file__).parents[2] / "simulator/session-bus.conf"


class Buses:
    """A message bus with a logind, for the system and the session, and somebody who calls the companion."""

    def __init__(self, test):
        self.address = companion_test.bus_address(test.folder / "bus")
        daemon = ["dbus-daemon", f"--config-file={BUS_SETTINGS}", "--nofork", "--print-address", f"--address={self.address}"]
        self.start(test, daemon)
        self.caller = self.start(test, [sys.argv[3], self.address])

    def start(self, test, command):
        process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        test.addCleanup(process.communicate)
        test.addCleanup(process.terminate)
        assert process.stdout.readline()
        return process

    def tell(self, command):
        self.caller.stdin.write(command + "\n")
        self.caller.stdin.flush()
        return self.caller.stdout.readline().strip()


class FaultsTest(companion_test.Companion):
    settings = companion_test.CONFIG | {"NeedCheckFotaUpdate": True, "WebDefaultApnProfileName": "Internet"}
    buses = None

    def open_bus(self):
        self.buses = self.buses or Buses(self)
        return self.buses.address

    def setUp(self):
        super().setUp()
        self.random, self.answers = random.Random(SEED), []
        self.modem.tell("set default-profile=Nowhere")  # is added, made the default, and told to be complete

    def watch_until(self, condition):
        """Waits, and meanwhile has the main thread answer again and again."""
        self.until(lambda: self.answers.append(self.buses.tell("ask")) or condition())

    def plug(self):
        self.modem.plug("enx1")
        ip("addr add 192.168.9.1/24 dev modem", prefix=("nsenter", "--net", "-t", str(self.modem.process.pid)))

    def until_normal(self, done):
        """The modem has taken its access points, and the next pass has begun."""
        polls = len(self.modem.polls())
        self.watch_until(lambda: self.log.count(DONE) > done and len(self.modem.polls()) > polls)

    def bear(self, fault, part):
        self.answers, seen, done = [], len(self.modem.requests()), self.log.count(DONE)
        memory, polls = self.memory(), len(self.modem.polls())
        self.modem.tell(f"fault {fault.format(part=part)} {part}")
        self.plug()
        self.watch_until(lambda: any(part in r["target"] for r in self.modem.requests()[seen:]))
        if fault not in STALLS:
            self.watch_until(lambda: len(self.modem.polls()) >= polls + 2)
        self.modem.tell("fault none")
        self.until_normal(done)

        requests = self.modem.requests()[seen:]
        self.assertTrue(all("Host: 192.168.8.1\r\n" in r["head"] for r in requests), "went after a redirection")
        posts = [r["body"] for r in requests if r["method"] == "POST"]
        self.assertEqual(len(posts), len(set(posts)), "sent a form twice")
        once = [form.split("=")[1].split("&")[0] for form in posts if "PC_APN_READY_SET" not in form]
        if part in (KINDS["session"], KINDS["set"]):  # no default follows a record that the modem has not taken
            self.assertEqual(len(once), len(set(once)), "sent a command twice")
        else:
            self.assertEqual(once, ["ADD_APN", "SET_DEFAULT_APN"])
        self.assertLess(self.memory(), memory + 32 * 1024)
        # Not how quick the machine is, but that nothing holds the main thread up: one answer may be late on a busy machine.
        times = [int(answer) for answer in self.answers]
        self.assertLess(statistics.median(times), 50, times)
        self.assertLess(max(times), 1000, times)

    def bear_all(self, kind):
        self.plug()
        self.until_normal(0)  # else the next plug-in would only finish what this one has begun
        self.modem.unplug("enx1")
        for fault in QUICK + STALLS:
            with self.subTest(kind=kind, fault=fault), contextlib.ExitStack() as end:
                end.callback(self.modem.unplug, "enx1")
                self.bear(fault, KINDS[kind])

    def test_sleeps_and_wakes_at_any_moment(self):
        self.plug()
        self.until_ready(self.modem, "enx1")
        for night in range(8):
            with self.subTest(seed=SEED, night=night):
                self.modem.tell("fault " + self.random.choice(("slow=100", "slow=100", "silent", "drip")))
                self.pass_time(2.5)
                self.sleep()
                done = self.log.count(DONE)
                self.buses.tell("wake")
                if night % 2:  # after the others it sleeps again in the middle of what follows wake
                    self.modem.tell("fault none")
                    self.until_normal(done)

    def pass_time(self, longest):
        time.sleep(self.random.uniform(0, longest))

    def sleep(self):
        """Sleeps for a while, in which nothing is sent. (What was sent before may still be on its way.)"""
        self.assertEqual(self.buses.tell("sleep"), "ok")
        asleep = 1000 * (time.time() + 0.3)
        self.pass_time(2)
        self.assertEqual([r["target"] for r in self.modem.requests() if r["time"] > asleep], [])

    def test_ends_at_any_moment(self):
        for news in ("month-received=99999999999", "firmware=version_has_new_critical_software"):
            self.modem.tell("set " + news)
        self.plug()
        files = self.files()
        for ending in range(12):
            fault = self.random.choice(("none", "slow=100", "slow=100", "silent", "drip", "endless", "close"))
            with self.subTest(seed=SEED, ending=ending, fault=fault):
                self.modem.tell(f"fault {fault}")
                self.pass_time(3)
                if ending % 4 == 3:
                    self.sleep()
                self.end()
                self.assertEqual(self.files(), files, "left behind")
            self.start_program()

    def files(self):
        return set(os.listdir(self.folder)) - {".cache"}  # where the font library keeps what it has found

    def end(self):
        begin = time.monotonic()
        self.program.terminate()
        status, took = self.program.wait(10), time.monotonic() - begin
        self.assertEqual(status, 0, "\n".join(self.log))
        self.assertLess(took, 2)  # a second, with some allowance for a busy machine


for one in KINDS:
    setattr(FaultsTest, f"test_bears_{one}", lambda self, kind=one: self.bear_all(kind))


def run_groups():
    """Runs each test by a process of its own, all at the same time, and ends with the worst of their statuses."""
    def run(name):
        group = subprocess.run([sys.executable, sys.argv[0], f"FaultsTest.{name}", *sys.argv[1:]], stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, text=True, check=False)
        print(name, group.stdout, sep="\n", flush=True)
        return group.returncode

    names = unittest.defaultTestLoader.getTestCaseNames(FaultsTest)
    with concurrent.futures.ThreadPoolExecutor(len(names)) as threads:
        sys.exit(max(threads.map(run, names), key=abs))


if __name__ == "__main__":
    if len(sys.argv) == 4:
        run_groups()
    enter_namespace()
    sys.argv[1:], options = sys.argv[-3:], sys.argv[1:-3]
    unittest.main(argv=[sys.argv[0], *options])
