"""What the programs of the end-to-end tests find around themselves: nothing of the user's, and of what is installed only
what a test names. Importing it makes this process forget the rest, which what it starts then never sees.
"""

import os

KEPT = {"PATH", "TMPDIR", "LD_LIBRARY_PATH", "TARVO_OWN_NAMESPACE", "TARVO_TEST_SEED"}

for name in os.environ.keys() - KEPT:
    if not name.endswith("_OPTIONS") and not name.startswith("MALLOC_"):
        del os.environ[name]
os.environ["LC_ALL"] = "C.UTF-8"
os.umask(0o022)


def environment(folder, usb, bus):
    """For a program whose user has nothing but @p folder, among the devices @p usb, with the session bus @p bus.

    Pages are opened by a program that does nothing: the machine's own would outlive the test.
    """
    opener = folder / "bin/xdg-open"
    if not opener.exists():
        opener.parent.mkdir()
        opener.write_text("#!/bin/sh\n")
        opener.chmod(0o755)
    nowhere = {name: str(folder / "nowhere") for name in ("XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS")}
    return os.environ | nowhere | {
        "PATH": f"{opener.parent}:{os.environ['PATH']}", "HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
        "XDG_RUNTIME_DIR": str(folder), "XDG_CACHE_HOME": str(folder / ".cache"), "QT_QPA_PLATFORM": "offscreen",
        "LD_PRELOAD": "libumockdev-preload.so.0", "UMOCKDEV_DIR": str(usb.root),
        "ASAN_OPTIONS": "verify_asan_link_order=0:quarantine_size_mb=8", "DBUS_SESSION_BUS_ADDRESS": bus}
