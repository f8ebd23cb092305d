#!/usr/bin/env bash
# Boots Debian's own kernel under QEMU (TCG, no KVM needed) with a busybox initramfs that holds
# velmora-cli, the gadget-side instrument and udev, and records the guest's console, on which the
# guest runs every case of cases.sh once. check_case.sh reads each case's verdict from that log.
#
# Usage: boot_guest.sh WORK_DIR VELMORA_CLI GADGET_INSTRUMENT UDEV_RULE
# Fails when the guest does not finish within VELMORA_SYSTEM_TIMEOUT seconds (default 150).
set -euo pipefail
# modprobe is in sbin, which a user's PATH may lack.
export PATH="$PATH:/usr/sbin:/sbin"

work="$1" cli="$2" gadget="$3" rule="$4"
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source_dir="$(cd "$here/../.." && pwd)"
console="$work/console.log"
limit="${VELMORA_SYSTEM_TIMEOUT:-150}"

mkdir -p "$work"
rm -f "$console"
for tool in qemu-system-x86_64 busybox udevadm cpio modprobe; do
    if ! command -v "$tool" >/dev/null; then
        echo "boot_guest: $tool is missing; scripts/ensure-packages installs it" >&2
        exit 1
    fi
done

kernel_dir="$("$source_dir/scripts/system-kernel")"
version="$(ls -1 "$kernel_dir/lib/modules")"
modules="$kernel_dir/lib/modules/$version"

stage="$work/initramfs"
rm -rf "$stage"
mkdir -p "$stage"/usr/{bin,sbin,lib,lib64} "$stage"/{proc,sys,dev,run,tmp,root,etc/velmora}
# The layout of Debian 12, where /bin and /lib are links into /usr.
for top in bin sbin lib lib64; do
    ln -s "usr/$top" "$stage/$top"
done

# install_file SOURCE [TARGET]: one file into the initramfs, at TARGET or at its own path.
install_file() {
    local target="$stage${2:-$1}"
    mkdir -p "$(dirname "$target")"
    cp -L "$1" "$target"
}

# install_program SOURCE TARGET: a program and every shared library it loads.
install_program() {
    install_file "$1" "$2"
    local library
    # "libc.so.6 => /lib/x86_64-linux-gnu/libc.so.6 (0x...)" and "/lib64/ld-linux-x86-64.so.2 (0x...)"
    for library in $(ldd "$1" 2>/dev/null | awk '$2 == "=>" && $3 ~ /^\// { print $3 } $1 ~ /^\// { print $1 }'); do
        [[ -e "$stage$library" ]] || install_file "$library"
    done
}

install_program "$(command -v busybox)" /usr/bin/busybox
for applet in $(busybox --list); do
    [[ -e "$stage/usr/bin/$applet" ]] || ln -s busybox "$stage/usr/bin/$applet"
done
install_program "$cli" /usr/bin/velmora-cli
install_program "$gadget" /usr/bin/gadget_instrument
install_program "$(command -v udevadm)" /usr/bin/udevadm
# udevadm is the daemon too when called by the daemon's name.
mkdir -p "$stage/usr/lib/systemd"
ln -s ../../bin/udevadm "$stage/usr/lib/systemd/systemd-udevd"
mkdir -p "$stage/usr/lib/udev/rules.d"
cp /usr/lib/udev/rules.d/*.rules "$stage/usr/lib/udev/rules.d/"
# Where the package and `cmake --install --prefix /usr` put it.
cp "$rule" "$stage/usr/lib/udev/rules.d/"

# The modules and what they need, in the order modprobe would load them.
for module in dummy_hcd libcomposite usb_f_hid usbhid hid-generic usb_f_acm cdc-acm; do
    modprobe -d "$kernel_dir" -S "$version" --show-depends "$module"
done | awk '$1 == "insmod" && !seen[$2]++ { print $2 }' | while read -r path; do
    guest_path="/usr/lib/modules/$version/${path#"$modules"/}"
    install_file "$path" "$guest_path"
    parameters=""
    [[ "$(basename "$path")" == dummy_hcd.ko ]] && parameters="num=2"
    echo "$guest_path $parameters"
done >"$stage/etc/velmora/modules.order"

printf 'root:x:0:0:root:/root:/bin/sh\nuser:x:1000:1000:user:/tmp:/bin/sh\n' >"$stage/etc/passwd"
printf 'root:x:0:\nuser:x:1000:\n' >"$stage/etc/group"
install -m 755 "$here/init" "$stage/init"
cp "$here/cases.sh" "$stage/etc/velmora/cases.sh"

# Uncompressed: unpacking gzip in an emulated CPU costs more than the copy saves.
(cd "$stage" && find . | cpio -o -H newc -R 0:0 --quiet) >"$work/initramfs.cpio"
echo "boot_guest: initramfs of $(du -m "$work/initramfs.cpio" | cut -f1) MB made in $SECONDS s"

started=$SECONDS
status=0
timeout --kill-after=10 "$limit" qemu-system-x86_64 -accel tcg -m 512M -smp 2 \
    -nographic -no-reboot -monitor none \
    -kernel "$kernel_dir/boot/vmlinuz-$version" -initrd "$work/initramfs.cpio" \
    -append "console=ttyS0 quiet loglevel=1 panic=-1" </dev/null | tee "$console" || status=$?
echo "boot_guest: the guest ran $((SECONDS - started)) s"

if [[ $status -eq 124 ]]; then
    echo "boot_guest: the guest did not finish within $limit s; killed" >&2
    exit 1
fi
if ! grep -q '^velmora-system: done' "$console"; then
    echo "boot_guest: the guest stopped before running every case (qemu exit status $status)" >&2
    exit 1
fi
