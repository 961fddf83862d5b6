#!/bin/bash
# The first process of the virtual machine that scripts/test-confined makes: runs the end-to-end tests of the installed
# programs with their profiles enforced. The tests' folders take the place of a user's, and are the profiles' only addition.
# The last line says how it ended; what was denied fails it, too.
export PATH=/usr/sbin:/usr/bin:/sbin:/bin TMPDIR=/root/tests LANG=C.UTF-8
mount -t securityfs security /sys/kernel/security
mount -t devpts pts /dev/pts
mkdir -p /dev/shm "$TMPDIR"
mount -t tmpfs shm /dev/shm
mount -t tmpfs tmp /tmp
sysctl -qw kernel.printk_ratelimit=0
ip link set lo up
cd /opt/tarvo || exit

mkdir -p /etc/apparmor.d/abstractions/tarvo.d
cat >/etc/apparmor.d/abstractions/tarvo.d/tests <<'RULES'
  /root/tests/*/ r,
  /root/tests/*/{devices,nowhere,config,bin}/{,**} r,
  /root/tests/*/devices/** w, # sockets of what makes up devices
  /root/tests/*/bus* rw,
  /root/tests/*/log w,
RULES
echo '/root/tests/*/tarvo.lock rwk, /root/tests/*/bin/xdg-open Ux,' >/etc/apparmor.d/local/tarvo
echo '/root/tests/*/config/{,**} rwkl,' >/etc/apparmor.d/local/tarvo-setup

if [[ -n $EMULATED ]]; then # a slow processor is kept busy by a signal each millisecond, and needs longer to end a program
  sed -i 's/time.monotonic() + 2$/time.monotonic() + 30/; s/time.sleep(0.001)/time.sleep(2)/' tests/e2e/companion_test.py
fi

status=0
apparmor_parser --replace /etc/apparmor.d/tarvo /etc/apparmor.d/tarvo-setup
for profile in tarvo tarvo-setup; do
  grep -x "$profile (enforce)" /sys/kernel/security/apparmor/profiles || status=1
done

# run TEST ARGUMENT...: runs one file of tests, and tells what was denied meanwhile.
run() {
  echo "== $1 ($SECONDS s)"
  # shellcheck disable=SC2086 # the options are words
  python3 "tests/$1_test.py" $OPTIONS /usr/bin/tarvo ./tarvo-modem-simulator "${@:2}" || status=1
  if dmesg --read-clear | grep -o 'apparmor="DENIED".*' | sed 's/ pid=[0-9]*//' | sort | uniq -c | grep .; then
    status=1
  fi
}

mkdir -p /etc/xdg/tarvo
python3 - >/etc/xdg/tarvo/Config.plist <<'CHANGE'
import plistlib, sys
with open("/usr/share/tarvo/Config.plist", "rb") as shipped:
    plistlib.dump(plistlib.load(shipped) | {"ProvisionAccessPoints": True, "NeedDisplayWhenDeviceRemoved": False}, sys.stdout.buffer)
CHANGE
OPTIONS="" run installed/installed
rm /etc/xdg/tarvo/Config.plist /usr/share/tarvo/Config.plist # the other tests find no settings but their own

OPTIONS=$COMPANION run e2e/companion
OPTIONS=$SETUP run e2e/setup /usr/bin/tarvo-setup
run e2e/plug_in /usr/bin/tarvo-setup
if [[ -z $EMULATED ]]; then
  run e2e/one_connection /usr/bin/tarvo-setup
  run e2e/faults ./tarvo-bus-simulator
fi
echo "confined tests ended with $status"
poweroff --force
