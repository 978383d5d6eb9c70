#!/bin/bash
# draw.sh: makes the pictures of the README and of the guide for users anew, each from the script of its name.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# Windows of the size that people see need a larger screen than the 800 by 800 of a machine without one.
export QT_QPA_PLATFORM=offscreen:configfile=$PWD/docs/pictures/screen.json
export TMPDIR=/tmp # the pages' folder is to be seen in some of them
./dev shot docs/main-window.png tools/mainWindow.drive
for script in docs/pictures/*.drive; do
    name=${script##*/}
    ./dev shot "docs/${name%.drive}.png" "$script"
done
