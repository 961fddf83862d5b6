"""Modems that a real program finds plugged in: links to network namespaces, behind made-up USB devices.

Needs ip, unshare and nsenter, and a network namespace of one's own (enter_namespace).
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys

INSIDE = "TARVO_OWN_NAMESPACE"
VENDOR, PRODUCT = 0x1234, 0x5678


def ip(*commands, prefix=()):
    subprocess.run([*prefix, "ip", "-batch", "-"], input="\n".join(commands), text=True, check=True)


def remove_links():
    """Takes every link of this namespace away, at once: where a modem's namespace ends, its links go only some time later."""
    for one in json.loads(subprocess.check_output(["ip", "-json", "link"])):
        if one["ifname"] != "lo":
            subprocess.run(["ip", "link", "del", one["ifname"]], stderr=subprocess.DEVNULL, check=False)


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

    def __init__(self, computer, subnet):
        """A modem for a computer that has a folder, made-up USB devices (usb), the path of the simulator, and addCleanup."""
        self.usb, self.subnet = computer.usb, subnet
        self.record = computer.folder / f"requests-{next(self.indexes)}"
        self.process = subprocess.Popen(
            ["unshare", "--net", computer.simulator, "--address", "0.0.0.0", "--port", "80", "--record", self.record],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        computer.addCleanup(self.end)
        assert "listening" in self.process.stdout.readline()

    def end(self):
        self.process.stdin.close()
        self.process.wait(10)
        self.process.stdout.close()

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        assert self.process.stdout.readline() == "ok\n"

    def plug(self, name, usb=True, metric=100, address=None):
        """Brings up the link as the kernel and udev do: first under another name. Without an address it has one by chance."""
        index = next(self.indexes)
        if usb:
            self.usb.add("usb0", index)
        ip(f"link add usb0 {address and 'address ' + address or ''} index {index} type veth peer name modem netns {self.process.pid}")
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

    def requests(self):
        """What was asked so far, as the simulator records it."""
        *lines, _ = self.record.read_text().split("\n")  # the last one is empty, or still being written
        return [json.loads(line) for line in lines]

    def polls(self):
        """The times, in seconds, at which the status page was asked for."""
        return [r["time"] / 1000 for r in self.requests() if r["target"].startswith("/logo_data.asp")]

    def connections(self, polls):
        """How many connections the last POLLS requests for the status page came over."""
        pages = [r["connection"] for r in self.requests() if r["target"].startswith("/logo_data.asp")]
        return len(set(pages[-polls:]))


def enter_namespace():
    """Replaces this process by one in a network namespace of its own, once, or ends it with the status for skipped."""
    if INSIDE in os.environ:
        return
    enter = ["unshare", "--net"] if os.geteuid() == 0 else ["unshare", "--net", "--user", "--map-root-user"]
    if subprocess.run([*enter, "ip", "link", "add", "type", "veth"], check=False).returncode != 0:
        print("SKIPPED: no network namespace with links can be made here")
        sys.exit(77)
    os.environ[INSIDE] = "1"
    os.execvp(enter[0], [*enter, sys.executable, *sys.argv])
