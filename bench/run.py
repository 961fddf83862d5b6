"""Measures the built programs beside their floors in one run, and prints a table of them.

Usage: run.py BUILD_FOLDER
Exit status 1: a measurement misses its goal by more than a fifth. 77: no network namespaces can be made here.
"""

import contextlib
import dataclasses
import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
import typing

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "simulator"))
from plugged_modem import VENDOR, Modem, UsbDevices, enter_namespace, ip, write  # noqa: E402

SLACK = 1.2  # a goal counts as missed when it is missed by more than a fifth
CONFIG = f"""<plist version="1.0"><dict><key>device_info</key><dict><key>vendor_ids</key><array><string>{VENDOR}</string>
</array></dict><key>AddRefererIntoHttpHeader</key><true/><key>IsDisplayNetStatusInToolBar</key><true/></dict></plist>"""


@dataclasses.dataclass
class Row:
    """One measurement. The goal is for the ratio where there is a floor, and for the value itself where there is none."""

    what: str
    ours: float
    floor: typing.Optional[float] = None
    goal: typing.Optional[float] = None
    unit: str = ""

    def ratio(self):
        return self.ours / self.floor if self.floor else None

    def misses(self):
        measured = self.ours if self.floor is None else self.ratio()
        return self.goal is not None and measured is not None and measured > self.goal * SLACK

    def cells(self):
        return [self.what, number(self.ours, self.unit), "-" if self.floor is None else number(self.floor, self.unit),
                "-" if self.ratio() is None else f"{self.ratio():.2f}", "-" if self.goal is None else f"{self.goal:g}",
                "MISSED" if self.misses() else ""]


def number(value, unit):
    return f"{value:,.0f} {unit}".strip() if value >= 100 or value == int(value) else f"{value:.2f} {unit}".strip()


def print_table(rows):
    table = [["what", "ours", "floor", "ratio", "goal", ""], *(row.cells() for row in rows)]
    widths = [max(map(len, column)) for column in zip(*table)]
    for what, *figures in table:
        print(" | ".join([what.ljust(widths[0]), *(f.rjust(w) for f, w in zip(figures, widths[1:]))]).rstrip(" |"))


class Process:
    """A program that runs until the surroundings end, and what the kernel says of it."""

    def __init__(self, surroundings, *command, **environment):
        self.process = subprocess.Popen(command, env=surroundings.environment | environment, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        surroundings.addCleanup(self.end)
        self.folder = pathlib.Path(f"/proc/{self.process.pid}")

    def line(self):
        return self.process.stdout.readline().strip()

    def end(self):
        self.process.terminate()
        self.process.wait(10)
        self.process.stdout.close()

    def processor_time(self):
        """In milliseconds, of all threads."""
        return sum(int((task / "schedstat").read_text().split()[0]) for task in (self.folder / "task").iterdir()) / 1e6

    def wake_ups(self):
        return sum(int((task / "status").read_text().split("\nvoluntary_ctxt_switches:")[1].split()[0])
                   for task in (self.folder / "task").iterdir())

    def memory(self):
        """In KiB: what is resident, its share of what is shared, what is its own, and what no file backs."""
        lines = (self.folder / "smaps_rollup").read_text().splitlines()[1:]
        kib = {name: int(value.split()[0]) for name, value in (line.split(":", 1) for line in lines)}
        return {"RSS": kib["Rss"], "PSS": kib["Pss"], "USS": kib["Private_Clean"] + kib["Private_Dirty"],
                "anonymous": kib["Anonymous"]}


class Surroundings(contextlib.ExitStack):
    """A folder, a display and a session bus of their own."""

    def __init__(self, build):
        super().__init__()
        self.addCleanup = self.callback
        self.build = build
        self.simulator = str(build / "simulator/tarvo-modem-simulator")
        self.folder = pathlib.Path(self.enter_context(tempfile.TemporaryDirectory()))
        self.usb = UsbDevices(self.folder / "devices")
        write(self.folder / "config/tarvo/Config.plist", CONFIG)
        self.environment = {"PATH": os.environ["PATH"], "HOME": str(self.folder), "XDG_RUNTIME_DIR": str(self.folder),
                            "XDG_CONFIG_HOME": str(self.folder / "config"), "LANG": "C.UTF-8"}
        bus = Process(self, "dbus-daemon", "--session", "--nofork", "--print-address")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.line()
        display = Process(self, "Xvfb", "-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp")
        self.environment["DISPLAY"] = ":" + display.line()
        # Both programs are measured with what makes the USB devices up.
        self.environment |= {"LD_PRELOAD": "libumockdev-preload.so.0", "UMOCKDEV_DIR": str(self.usb.root)}

    def ours(self):
        return Process(self, str(self.build / "app/tarvo"))

    def floor(self, name, *arguments):
        return Process(self, str(self.build / f"bench/floor_{name}"), *arguments)


def during(seconds, *processes):
    """Lets time pass. @return processor time and wake-ups of each process in it"""
    before = [(p.processor_time(), p.wake_ups()) for p in processes]
    time.sleep(seconds)
    return [(p.processor_time() - cpu, p.wake_ups() - wake_ups) for p, (cpu, wake_ups) in zip(processes, before)]


def measure_run(build, idle_seconds=20, poll_seconds=60):
    """Without a modem, then while polling one whose page does not change."""
    with Surroundings(build) as desktop:
        Process(desktop, *(["trayer"] if shutil.which("trayer") else ["stalonetray"]))
        time.sleep(1)
        ours, tray = desktop.ours(), desktop.floor("tray_program")
        time.sleep(5)
        (cpu, wake_ups), (floor_cpu, floor_wake_ups) = during(idle_seconds, ours, tray)
        yield Row("idle: processor time", cpu / idle_seconds, floor_cpu / idle_seconds, unit="ms/s")
        yield Row("idle: wake-ups a minute", wake_ups * 60 / idle_seconds, goal=1 + floor_wake_ups * 60 / idle_seconds)

        modem, other, third = (Modem(desktop, f"192.168.{net}") for net in (8, 9, 10))
        modem.tell("set dial-mode=manual_dial")  # else each pass asks for the default access point as well
        modem.plug("enx1")
        other.plug("eth1", usb=False, metric=200)
        third.plug("eth2", usb=False, metric=300)
        poll = desktop.floor("keep_alive_poll", "http://192.168.9.1/logo_data.asp")
        polling_tray = desktop.floor("polling_tray_program", "http://192.168.10.1/logo_data.asp")
        time.sleep(15)  # the icon has been shown, the balloon is gone
        polls, floor_polls = len(modem.polls()), len(other.polls())
        (cpu, wake_ups), (floor_cpu, floor_wake_ups) = during(poll_seconds, ours, poll)
        polls, floor_polls = len(modem.polls()) - polls, len(other.polls()) - floor_polls
        yield Row("poll: processor time", cpu / polls, floor_cpu / floor_polls, goal=1.2, unit="ms")
        yield Row("poll: wake-ups", wake_ups / polls, goal=2.2)  # to send, and when the answer is there
        yield Row("poll: connections to the modem", modem.connections(polls), goal=1)
        memory, floor_memory = ours.memory(), polling_tray.memory()
        for kind, goal in (("RSS", 1.08), ("PSS", 1.1), ("USS", 1.25)):
            yield Row(f"memory while polling: {kind}", memory[kind], floor_memory[kind], goal, "KiB")
        yield Row("memory while polling: anonymous", memory["anonymous"], goal=5 * 1024, unit="KiB")

        modem.tell(f"set month-received={11 << 30}")
        time.sleep(25)  # the news have been told, and stand
        told = Process(desktop, "dbus-monitor", "--profile", "sender=io.github.tarvo.Tarvo")
        time.sleep(poll_seconds)
        told.process.terminate()
        lines = [line.split("\t") for line in told.process.stdout]  # the bus greets the monitor as well
        messages = [line for line in lines if line[0] in ("sig", "mc") and line[3] != "org.freedesktop.DBus"]
        yield Row("messages on the bus a minute, while news stand", len(messages) * 60 / poll_seconds, goal=1)


def start_time(desktop, host, make):
    """In milliseconds, from the start of a program until its icon asks to be docked."""
    begin = time.monotonic_ns()
    program = make()
    docked = int(host.line())
    program.end()
    return (docked - begin) / 1e6


def measure_start(build, runs=41):
    with Surroundings(build) as desktop:
        host = Process(desktop, str(build / "bench/bench_tray_host"))
        assert host.line() == "ready"
        times = [(start_time(desktop, host, desktop.ours),
                  start_time(desktop, host, lambda: desktop.floor("tray_program"))) for _ in range(runs)]
        ours, floor = map(statistics.median, zip(*times))
        yield Row("start: until the icon is docked", ours, floor, goal=1.25, unit="ms")


def measure_program(build, name):
    """A program that measures by itself, and prints a line of JSON for each figure."""
    # The allocator's caches of single threads would count as used.
    environment = os.environ | {"GLIBC_TUNABLES": "glibc.malloc.tcache_count=0"}
    output = subprocess.run([build / f"bench/bench_{name}"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                            check=True, env=environment).stdout
    for line in output.splitlines():
        yield Row(**json.loads(line))


def google_benchmark(build, name, *options):
    """The processor time of each benchmark, in nanoseconds."""
    output = subprocess.check_output([build / f"bench/bench_{name}", "--benchmark_format=json", *options],
                                     stderr=subprocess.DEVNULL)
    return {one["name"]: one["cpu_time"] for one in json.loads(output)["benchmarks"] if "error_message" not in one}


def measure_fields(build):
    times = google_benchmark(build, "answer_fields")
    for size, name in ((3 << 10, "3 KiB"), (64 << 10, "64 KiB"), (1 << 20, "1 MiB")):
        yield Row(f"fields of a page of {name}", times[f"readFields/{size}"] / 1e3, times[f"bareSearch/{size}"] / 1e3, 2.2,
                  "us")


def measure_decoding(build):
    blocks = 2000
    times = google_benchmark(build, "profile_decoding", "--benchmark_filter=bareOperation|decodeAFile/2000")
    yield Row("decode a profile: a block", times[f"decodeAFile/{blocks}"] / blocks / 1e3, times["bareOperation"] / 1e3, 1.25,
              "us")


def main():
    enter_namespace()
    ip("link set lo up")
    build = pathlib.Path(sys.argv[1])
    measurements = [measure_run(build), measure_start(build), measure_fields(build), measure_decoding(build),
                    measure_program(build, "link_storm"), measure_program(build, "soak")]
    rows = []
    for rows_of_one in measurements:
        for row in rows_of_one:
            print(row.what, file=sys.stderr)
            rows.append(row)
    print_table(rows)
    sys.exit(any(row.misses() for row in rows))


if __name__ == "__main__":
    main()
