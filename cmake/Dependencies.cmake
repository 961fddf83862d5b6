# Every dependency comes from the distribution. The floor is Debian 12.

# Text, event loop, timers, files in the user's folders; windows and widgets; D-Bus (logind, notifications,
# tray hosts). Drawings: the companion's are turned into pictures while it is built, tarvo-setup draws its marks itself.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets DBus Svg LinguistTools)

find_package(PkgConfig REQUIRED)

# HTTP to the modem: timeouts, interruptible transfers, exact headers. Loaded when the first modem comes, not linked.
find_package(CURL 7.88 REQUIRED)

# RSA for the access-point profile files.
find_package(OpenSSL 3.0 REQUIRED COMPONENTS Crypto)

# Links, addresses and routes from the kernel.
pkg_check_modules(LIBNL REQUIRED IMPORTED_TARGET libnl-3.0>=3.7)

# The USB device behind a network interface.
pkg_check_modules(LIBUDEV REQUIRED IMPORTED_TARGET libudev)

# Docking the icon into a system tray that speaks XEmbed, and telling which process such a tray is.
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-res)

find_package(Threads REQUIRED)

if(TARVO_BUILD_TESTS OR TARVO_BUILD_DEMO)
  # The simulated modem's web server.
  find_package(Qt6 6.4 REQUIRED COMPONENTS Network)
  # Waits that run the event loop, and pointer events, in the demo's tour and in the tests of windows.
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
endif()

if(TARVO_BUILD_TESTS)
  # The test framework.
  find_package(GTest REQUIRED)
  # USB devices that are not there, beside real network interfaces.
  pkg_check_modules(UMOCKDEV REQUIRED IMPORTED_TARGET umockdev-1.0 gio-2.0)
  find_program(UMOCKDEV_WRAPPER umockdev-wrapper REQUIRED)
  # The settings' service of the panel that hosts status items in the tests.
  find_program(XFCONFD xfconfd PATHS "/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/xfce4/xfconf" REQUIRED)
  # The end-to-end test; it needs ip (iproute2), unshare and nsenter (util-linux) as well.
  find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
endif()

if(TARVO_BUILD_BENCHMARKS)
  # The benchmark harness.
  find_package(benchmark REQUIRED)
endif()
