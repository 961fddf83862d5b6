"""Runs the real program in a network namespace, with modems that are links to namespaces of their own.

Usage: companion_test.py [unittest options] PROGRAM MODEM_SIMULATOR
Exit status 77: no network namespaces can be made here.
"""

import json
import os
import pathlib
import plistlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest

INSIDE = "TARVO_TEST_NAMESPACE"
VENDOR, PRODUCT = 0x1234, 0x5678
CONFIG = {"device_info": {"vendor_ids": [str(VENDOR)]}, "AddRefererIntoHttpHeader": True,
          "IsDisplayNetStatusInToolBar": True, "NeedDisplayWhenDeviceRemoved": True}


def ip(*commands, prefix=()):
    subprocess.run([*prefix, "ip", "-batch", "-"], input="\n".join(commands), text=True, check=True)


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)


def link(path, target):
    path.symlink_to(os.path.relpath(target, path.parent))


class UsbDevices:
    """A sysfs of our own for libudev: a USB device, its interface and a network interface for each modem."""

    def __init__(self, folder):
        self.root = folder
        self.sys = folder / "sys"
        for part in ("bus/usb/devices", "class/net"):
            (self.sys / part).mkdir(parents=True)

    def add(self, name, index):
        device = self.sys / f"devices/usb1/1-{index}"
        interface = device / f"1-{index}:1.0"
        net = interface / "net" / name
        write(device / "uevent", "DEVTYPE=usb_device\n")
        write(device / "idVendor", f"{VENDOR:04x}\n")
        write(device / "idProduct", f"{PRODUCT:04x}\n")
        write(interface / "uevent", "DEVTYPE=usb_interface\n")
        write(net / "uevent", f"INTERFACE={name}\nIFINDEX={index}\n")
        write(net / "ifindex", f"{index}\n")
        for node, subsystem in ((device, "bus/usb"), (interface, "bus/usb"), (net, "class/net")):
            link(node / "subsystem", self.sys / subsystem)
        for node in (device, interface):
            link(self.sys / "bus/usb/devices" / node.name, node)
        link(net / "device", interface)
        link(self.sys / "class/net" / name, net)

    def rename(self, old, new):
        net = (self.sys / "class/net" / old).resolve()
        (self.sys / "class/net" / old).unlink()
        link(self.sys / "class/net" / new, net.rename(net.with_name(new)))

    def remove(self, name):
        net = self.sys / "class/net" / name
        device = net.resolve().parents[2]
        net.unlink()
        shutil.rmtree(device)


class Modem:
    """A host in a namespace of its own, that answers on port 80 at the far end of a link."""

    indexes = iter(range(10000, 20000))

    def __init__(self, test, subnet):
        self.usb, self.subnet = test.usb, subnet
        self.record = test.folder / f"requests-{next(self.indexes)}"
        self.process = subprocess.Popen(
            ["unshare", "--net", sys.argv[2], "--address", "0.0.0.0", "--port", "80", "--record", self.record],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        test.addCleanup(self.end)
        assert "listening" in self.process.stdout.readline()

    def end(self):
        self.process.stdin.close()
        self.process.wait(10)
        self.process.stdout.close()

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        assert self.process.stdout.readline() == "ok\n"

    def plug(self, name, usb=True, metric=100):
        """Brings up the link as the kernel and udev do: first under another name."""
        index = next(self.indexes)
        if usb:
            self.usb.add("usb0", index)
        ip(f"link add usb0 index {index} type veth peer name modem netns {self.process.pid}")
        if usb:
            self.usb.rename("usb0", name)
        ip(f"link set usb0 name {name}")
        ip("link set modem up", f"addr replace {self.subnet}.1/24 dev modem",
           prefix=("nsenter", "--net", "-t", str(self.process.pid)))
        ip(f"addr add {self.subnet}.100/24 dev {name}")
        self.bring_up(name, metric)

    def unplug(self, name):
        """Takes the link away as the kernel does: when that is told, the device is gone already."""
        self.usb.remove(name)
        ip(f"link del {name}")

    def bring_up(self, name, metric=100):
        ip(f"link set {name} up", f"route add default via {self.subnet}.1 dev {name} metric {metric}")

    def polls(self):
        """The times, in seconds, at which the status page was asked for."""
        *lines, _ = self.record.read_text().split("\n")  # the last one is empty, or still being written
        return [r["time"] / 1000 for r in map(json.loads, lines) if r["target"].startswith("/logo_data.asp")]


class CompanionTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.usb = UsbDevices(self.folder / "devices")
        write(self.folder / "config/tarvo/Config.plist", plistlib.dumps(CONFIG).decode())
        self.modem = Modem(self, "192.168.8")
        self.start_program()

    def start_program(self, session_bus=None):
        mute = f"unix:path={self.folder}/bus"
        self.mute_bus = socket.socket(socket.AF_UNIX)
        self.addCleanup(self.mute_bus.close)
        self.mute_bus.bind(str(self.folder / "bus"))
        self.mute_bus.listen()
        self.environment = {name: value for name, value in os.environ.items() if name == "PATH" or "_OPTIONS" in name} | {
            "LD_PRELOAD": "libumockdev-preload.so.0", "UMOCKDEV_DIR": str(self.usb.root), "HOME": str(self.folder),
            "ASAN_OPTIONS": "verify_asan_link_order=0", "QT_QPA_PLATFORM": "offscreen",
            "XDG_CONFIG_HOME": str(self.folder / "config"), "XDG_RUNTIME_DIR": str(self.folder),
            "XDG_CONFIG_DIRS": str(self.folder), "XDG_DATA_DIRS": str(self.folder),
            "DBUS_SESSION_BUS_ADDRESS": session_bus or mute, "DBUS_SYSTEM_BUS_ADDRESS": mute}
        self.program = subprocess.Popen([sys.argv[1]], env=self.environment, stderr=subprocess.PIPE, text=True)
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
        for one in json.loads(subprocess.check_output(["ip", "-json", "link"])):
            if one["ifname"] != "lo":
                subprocess.run(["ip", "link", "del", one["ifname"]], stderr=subprocess.DEVNULL, check=False)

    def quit(self):
        """SIGTERM, however often, ends the program, long before a request or a bus that gives no answer would."""
        deadline = time.monotonic() + 2
        while self.program.poll() is None and time.monotonic() < deadline:
            self.program.terminate()
            time.sleep(0.001)
        self.assertEqual(self.program.poll(), 0, "\n".join(self.log))

    def until(self, condition, seconds=15):
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

    def memory(self):
        """What is resident, in KiB."""
        status = pathlib.Path(f"/proc/{self.program.pid}/status").read_text()
        return int(status.split("VmRSS:")[1].split()[0])

    def test_polls_once_a_second_until_unplugged_and_again_when_plugged_in(self):
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1")
        self.until(lambda: len(self.modem.polls()) >= 6)
        polls = self.modem.polls()
        self.assertGreater(polls[5] - polls[0], 4.5)
        self.assertIn("192.168.8.1", self.log)

        self.modem.unplug("enx1")
        self.until(lambda: "DeviceRemoved,stopGetModemStatus" in self.log)
        self.modem.plug("enx1")
        self.until_ready(self.modem, "enx1", times=2)

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

    def test_says_that_there_is_no_display(self):
        program = subprocess.run([sys.argv[1]], env=self.environment | {"QT_QPA_PLATFORM": "xcb", "DISPLAY": ""},
                                 stderr=subprocess.PIPE, text=True, check=False)
        self.assertIn("\ntarvo: no display: ", program.stderr)
        self.assertEqual(program.returncode, 1)

    def test_quits_while_the_modem_does_not_answer(self):
        self.modem.tell("fault silent")
        self.modem.plug("enx1")
        self.until(lambda: self.modem.polls())
        # The end of every test makes the program quit.


def in_namespace():
    """Replaces this process by one in a network namespace of its own, or ends it with the status for skipped."""
    enter = ["unshare", "--net"] if os.geteuid() == 0 else ["unshare", "--net", "--user", "--map-root-user"]
    if subprocess.run([*enter, "ip", "link", "add", "type", "veth"], check=False).returncode != 0:
        print("SKIPPED: no network namespace with links can be made here")
        sys.exit(77)
    os.environ[INSIDE] = "1"
    os.execvp(enter[0], [*enter, sys.executable, *sys.argv])


if __name__ == "__main__":
    if INSIDE not in os.environ:
        in_namespace()
    sys.argv[1:], options = sys.argv[-2:], sys.argv[1:-2]
    unittest.main(argv=[sys.argv[0], *options])
