# The system test's cases, sourced by the guest's /init. Every function named case_NAME is one
# case, run in the order written; CMake makes a ctest of each from the same names. A case reports
# through check and note; run_case prints its verdict as "velmora-system: result NAME PASS|FAIL".
# The cases run on one boot, in this order, and each leaves the gadgets as the next expects them.

instrument=/sys/kernel/config/usb_gadget/instrument
serial=/sys/kernel/config/usb_gadget/serial
node=/dev/hidraw0
work=/tmp/cases
unplugged="velmora-cli: the instrument was unplugged"
mkdir -p "$work"

note() { echo "velmora-system: $current: $*"; }

fail() {
    note "FAIL: $*"
    verdict=FAIL
}

# check DESCRIPTION COMMAND...: a failure unless COMMAND succeeds.
check() {
    description=$1
    shift
    "$@" || fail "$description"
}

run_case() {
    current=$1
    verdict=PASS
    note "begin"
    began=$(centiseconds)
    "case_$1"
    took=$(($(centiseconds) - began))
    note "took $((took / 100)).$((took / 10 % 10)) s"
    echo "velmora-system: result $1 $verdict"
}

centiseconds() { awk '{ printf "%d\n", $1 * 100 }' /proc/uptime; }

# wait_for SECONDS COMMAND...: polls COMMAND until it succeeds, for at most SECONDS.
wait_for() {
    deadline=$(($(centiseconds) + $1 * 100))
    shift
    until "$@"; do
        [ "$(centiseconds)" -lt "$deadline" ] || return 1
        usleep 20000
    done
}

has_line() { grep -qxF "$2" "$1" 2>/dev/null; }
has_text() { grep -qF "$2" "$1" 2>/dev/null; }
line_count() { wc -l <"$1"; }
has_lines() { [ "$(line_count "$1")" -ge "$2" ]; }
exists() { [ -e "$1" ]; }
ended() { [ -e "$work/$1.rc" ]; }
tagged_uaccess() { grep -qE '^(G: uaccess$|E: (CURRENT_)?TAGS=.*:uaccess:)' "$1"; }

# Plugging is binding the gadget to a controller; the node is there once udev has handled it.
plug() { echo "$2" >"$1/UDC"; }
unplug() { echo "" >"$1/UDC"; }

plug_instrument() {
    plug "$instrument" dummy_udc.0
    check "$node appears" udevadm wait --timeout=30 "$node"
}

unplug_instrument() {
    unplug "$instrument"
    check "$node goes" udevadm wait --removed --timeout=30 "$node"
}

# The gadget side answers for the instrument; its log is $work/gadget.log.
start_gadget() {
    check "/dev/hidg0 appears" udevadm wait --timeout=30 /dev/hidg0
    gadget_instrument /dev/hidg0 >"$work/gadget.log" 2>&1 &
    gadget=$!
}

stop_gadget() {
    kill "$gadget" 2>/dev/null
    wait "$gadget" 2>/dev/null
}

# start NAME COMMAND...: COMMAND in the background; NAME.out, NAME.err, NAME.pid, and NAME.rc
# with the exit status once it ended.
start() {
    name=$1
    shift
    rm -f "$work/$name".*
    (
        "$@" </dev/null >"$work/$name.out" 2>"$work/$name.err" &
        echo $! >"$work/$name.pid"
        wait $!
        echo $? >"$work/$name.rc"
    ) &
    wait_for 5 exists "$work/$name.pid"
}

# finish NAME SECONDS: waits for it to end; one still running then is killed and noted.
finish() {
    if ! wait_for "$2" ended "$1"; then
        fail "$1 still running after $2 s; killed"
        kill -9 "$(cat "$work/$1.pid")"
        wait_for 5 ended "$1"
    fi
    rc=$(cat "$work/$1.rc")
}

# interrupt NAME: Ctrl-C, as a user ends a watch.
interrupt() {
    kill -INT "$(cat "$work/$1.pid")"
    finish "$1" 5
}

show() {
    for file in "$@"; do
        [ -s "$file" ] && sed "s|^|velmora-system: $current: ${file##*/}: |" "$file"
    done
}

case_read_count() {
    plug_instrument
    start_gadget
    start read velmora-cli read --count 20
    finish read 30
    stop_gadget
    check "read --count 20 exits 0, not $rc" [ "$rc" = 0 ]
    grep '^answer ' "$work/gadget.log" | head -n 20 | cut -d' ' -f2 >"$work/answers"
    check "it prints the 20 readings the gadget answered" cmp -s "$work/read.out" "$work/answers"
    grep '^out ' "$work/gadget.log" >"$work/reports"
    check "the first two output reports are 80 80" \
        [ "$(head -n 2 "$work/reports" | grep -c '^out 80 80')" = 2 ]
    check "every later output report is 31 00" \
        [ "$(tail -n +3 "$work/reports" | grep -vc '^out 31 00')" = 0 ]
    check "one 31 00 for each of the 20 readings" [ "$(grep -c '^out 31 00' "$work/reports")" -ge 20 ]
    note "the gadget saw $(line_count "$work/reports") output reports"
    show "$work/read.out" "$work/read.err" "$work/reports"
}

case_unplug_ends_read() {
    start_gadget
    start read velmora-cli read
    check "readings come" wait_for 10 has_lines "$work/read.out" 3
    unplugged_at=$(centiseconds)
    unplug_instrument
    finish read 5
    took=$(($(centiseconds) - unplugged_at))
    stop_gadget
    note "read ended $((took / 100)).$((took / 10 % 10)) s after the unplug, exit status $rc"
    check "read ends within 2 s of the unplug" [ "$took" -le 200 ]
    check "read exits 1, not $rc" [ "$rc" = 1 ]
    check "standard error says \"$unplugged\"" has_line "$work/read.err" "$unplugged"
    show "$work/read.err"
}

case_replug_read() {
    plug_instrument
    start_gadget
    start read velmora-cli read --count 5
    finish read 20
    stop_gadget
    check "read --count 5 exits 0, not $rc" [ "$rc" = 0 ]
    check "it prints 5 readings" [ "$(line_count "$work/read.out")" = 5 ]
    show "$work/read.out" "$work/read.err"
}

case_access_denied() {
    chmod 600 "$node"
    chown 0:0 "$node"
    # An ordinary user: only uaccess would let it in, and that needs a user logged in at the seat.
    start read su -s /bin/sh -c 'exec velmora-cli read --count 1' user
    finish read 20
    check "read exits 1, not $rc" [ "$rc" = 1 ]
    check "standard error names the udev rule" has_text "$work/read.err" \
        "this user may not open it. Install the udev rule 70-velmora.rules"
    check "nothing on standard output" [ ! -s "$work/read.out" ]
    show "$work/read.out" "$work/read.err"
}

case_uaccess_tag() {
    udevadm info "$node" >"$work/hidraw.info"
    check "udev tags $node uaccess" tagged_uaccess "$work/hidraw.info"
    for device in /sys/bus/usb/devices/*; do
        [ "$(cat "$device/idVendor" 2>/dev/null)" = 04d8 ] && usb=$device
    done
    udevadm info "$usb" >"$work/usb.info"
    check "udev tags the USB device uaccess" tagged_uaccess "$work/usb.info"
    grep -E '^(N|G|E: (TAGS|DEVNAME))' "$work/hidraw.info" "$work/usb.info" >"$work/tags"
    show "$work/tags"
}

# watch_case SOURCE GADGET CONTROLLER ADDED REMOVED TEXT [OPTIONS...]: the watcher, started with
# nothing plugged, prints ADDED (a line holding TEXT) then REMOVED as the gadget comes and goes.
watch_case() {
    source=$1 gadget_dir=$2 controller=$3 added=$4 removed=$5 text=$6
    shift 6
    start watch velmora-cli watch "$source" "$@"
    plug "$gadget_dir" "$controller"
    check "watch $source prints $added" wait_for 30 grep -q "^$added.*$text" "$work/watch.out"
    unplug "$gadget_dir"
    check "watch $source prints $removed" wait_for 30 grep -q "^$removed" "$work/watch.out"
    interrupt watch
    check "watch $source exits 0 on Ctrl-C, not $rc" [ "$rc" = 0 ]
    show "$work/watch.out" "$work/watch.err"
}

case_watch_hid() {
    unplug_instrument
    watch_case hid "$instrument" dummy_udc.0 HIDDeviceConnected HIDDeviceDisconnected \
        "Velmora Refractometer"
}

case_watch_usb() {
    watch_case usb "$instrument" dummy_udc.0 USBDeviceConnected USBDeviceDisconnected 0x04D8
}

case_watch_serial() {
    watch_case serial "$serial" dummy_udc.1 SerialDeviceAdded SerialDeviceRemoved ttyACM \
        --vendor 0x1d6b --product 0x0104 --interval 0.1
}
