"""Runs the real programs against web servers that serve one connection at a time, as those of small modems do.

Usage: one_connection_test.py [unittest options] PROGRAM MODEM_SIMULATOR SETUP_PROGRAM
Exit status 77: no network namespaces can be made here.
"""

import functools
import http.client
import http.server
import json
import os
import subprocess
import sys

import companion_test
from plugged_modem import Modem, enter_namespace, write

LIGHTTPD = """
server.document-root = "{0}"
server.port = 80
server.max-connections = 1
server.max-keep-alive-idle = 60
mimetype.assign = ("" => "application/json")
"""
PAGES = {"logo_data.asp": {"ppp_status": "ppp_connected", "monthly_velta_tx": "1"},
         "goform/goform_get_cmd_process": {"profile_type": "1", "cr_version": "A", "wa_inner_version": "B", "RD": "C",
                                           "ppp_status": "ppp_connected", "data": {}},
         "goform/goform_set_cmd_process": {"result": "success"}}


class ServedModem(Modem):
    """A modem whose web server is another program."""

    def __init__(self, computer, subnet, command):
        self.usb, self.subnet = computer.usb, subnet
        self.process = subprocess.Popen(["unshare", "--net", *command], stderr=subprocess.DEVNULL)
        computer.addCleanup(self.process.wait)
        computer.addCleanup(self.process.kill)
        computer.until(lambda: os.readlink(f"/proc/{self.process.pid}/ns/net") != os.readlink("/proc/self/ns/net"))


class OneByOne(http.server.SimpleHTTPRequestHandler):
    """Serves a connection until the client closes it, and no other one meanwhile."""

    protocol_version = "HTTP/1.1"
    extensions_map = {"": "application/json"}

    def do_POST(self):
        self.rfile.read(int(self.headers["Content-Length"]))
        self.do_GET()


class OneConnectionTest(companion_test.Companion):
    settings = companion_test.CONFIG | {"AddRefererIntoHttpHeader": False, "WebDefaultApnProfileName": "Internet"}

    def setUp(self):
        super().setUp()
        self.pages = self.folder / "www"
        for name, content in PAGES.items():
            write(self.pages / name, json.dumps(content, separators=(",", ":")))

    def ask(self):
        """Opens a page as a browser does. @return the connection, which stays open"""
        browser = http.client.HTTPConnection("192.168.9.1", timeout=4)
        self.addCleanup(browser.close)
        browser.request("GET", "/logo_data.asp")
        self.assertEqual(json.load(browser.getresponse()), PAGES["logo_data.asp"])
        return browser

    def check(self):
        """@return the mark of the link that asks the web server, and the advice for it"""
        run = subprocess.run([sys.argv[3], "check", "--json"], env=self.environment, stdout=subprocess.PIPE, check=False)
        port = next(check for check in json.loads(run.stdout)["checks"] if check["id"] == "port")
        return port["mark"], port["advice"]

    def share(self, server):
        """The companion and others get to a modem with the web server @p server, at the same time."""
        ServedModem(self, "192.168.9", server).plug("enx2")
        self.until(lambda: "PC_APN_READY_SET success!" in self.log)
        for _ in range(3):
            self.ask().close()
        self.assertEqual(self.check(), ("ok", ""))
        self.assertNotIn("PC_APN_READY_SET set request failed!", self.log)

        browser = self.ask()
        mark, advice = self.check()
        self.assertEqual(mark, "broken")
        self.assertIn("busy with another program", advice)
        browser.close()
        self.ask()

    def test_lighttpd(self):
        write(self.folder / "lighttpd.conf", LIGHTTPD.format(self.pages))
        self.share(["/usr/sbin/lighttpd", "-D", "-f", self.folder / "lighttpd.conf"])

    def test_a_server_that_accepts_one_at_a_time(self):
        self.share([sys.executable, __file__, "serve", self.pages])


if __name__ == "__main__":
    if sys.argv[1] == "serve":
        http.server.HTTPServer(("", 80), functools.partial(OneByOne, directory=sys.argv[2])).serve_forever()
    enter_namespace()
    sys.argv[1:], options = sys.argv[-3:], sys.argv[1:-3]
    companion_test.unittest.main(argv=[sys.argv[0], *options])
