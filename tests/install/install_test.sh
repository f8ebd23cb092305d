#!/usr/bin/env bash
# Installs the build into a temporary prefix as a packager would, and checks that a desktop finds
# everything where it looks for it, and that the installed tools find their data on their own.
#   install_test.sh BUILD_DIR
set -euo pipefail
build="$1"
prefix="$(mktemp -d)"
trap 'rm -rf "$prefix"' EXIT

cmake --install "$build" --prefix "$prefix" >/dev/null

failures=0
expect_file() {
    if [[ ! -f "$prefix/$1" ]]; then
        echo "missing: $1"
        failures=$((failures + 1))
    fi
}
id=io.velmora.Desktop
expect_file bin/velmora-cli
expect_file share/velmora/AllStoneNew.csv
expect_file share/velmora/Tutorial.pdf
expect_file share/applications/$id.desktop
expect_file share/metainfo/$id.metainfo.xml
expect_file share/icons/hicolor/scalable/apps/$id.svg
for size in 48 128 256; do
    expect_file share/icons/hicolor/${size}x${size}/apps/$id.png
done
expect_file lib/udev/rules.d/70-velmora.rules
expect_file share/man/man1/velmora-cli.1.gz
for extra in "${@:2}"; do
    expect_file "$extra"
done

# The rule and the record are made by the build from the identifiers the program looks for.
rules="$prefix/lib/udev/rules.d/70-velmora.rules"
if [[ -f "$rules" ]] && [[ $(grep -c 'ATTRS{idVendor}=="04d8", ATTRS{idProduct}=="f9ff"' "$rules") -ne 2 ]]; then
    echo "the udev rule does not name the instrument 04d8:f9ff twice"
    failures=$((failures + 1))
fi
if ! grep -q '<modalias>usb:v04D8pF9FFd\*</modalias>' "$prefix/share/metainfo/$id.metainfo.xml"; then
    echo "the metainfo does not provide the instrument's modalias"
    failures=$((failures + 1))
fi

desktop-file-validate "$prefix/share/applications/$id.desktop" || failures=$((failures + 1))
appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" >/dev/null ||
    { appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml"; failures=$((failures + 1)); }

# From the install alone: no variable points at the resources.
stones=$(env -u VELMORA_RESOURCES "$prefix/bin/velmora-cli" stones | wc -l)
if [[ "$stones" -lt 300 ]]; then
    echo "the installed velmora-cli lists $stones stones"
    failures=$((failures + 1))
fi

if [[ $failures -ne 0 ]]; then
    echo "$failures failures"
    exit 1
fi
echo "installed layout complete"
