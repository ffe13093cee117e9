# shellcheck shell=sh
# Run by deb_test.py in a clean root, in a folder with metagen.deb and stripped.json: installs the
# package, takes the road from the SDK to the tables, and removes it. What it leaves there is looked
# at outside.
set -e
cd "$(dirname "$0")"

files() { find / -xdev -path "$PWD" -prune -o -path /proc -prune -o -path /sys -prune -o -print | sort; }

files >before.txt
dpkg --install metagen.deb
dpkg --configure --pending # what dpkg puts off for the end of a whole installation
dpkg --audit >audit.txt
test -f /usr/share/man/man1/metagen.1.gz
test -f /usr/share/man/man1/metagen-lint.1.gz

metagen dump -o none.json >no_sdk.txt || echo "status $?" >>no_sdk.txt
export QYRA_SDK=/usr/lib/metagen/replay_sdk
metagen dump -o base.json
metagen combine -i stripped.json -o combined.json >summary.txt
metagen genh -i combined.json -o genh
metagen genm -i combined.json -o genm
echo '{"version": 1, "plugins": {"OptionSettings": {"params": {"log_level": {"defaultValue": "3"}}}}}' \
    >clean.json
metagen-lint clean.json >findings.txt
metagen-report base.json combined.json -o page.html
metagen-schema -o s.schema.json
metagen-show genm.bin >genm.txt

dpkg --purge metagen
files >after.txt
