#!/bin/bash
# draw.sh: makes the pictures of the README and of the guide for users anew, each from the script of its name.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
./dev shot docs/main-window.png tools/mainWindow.drive
for script in docs/pictures/*.drive; do
    name=${script##*/}
    ./dev shot "docs/${name%.drive}.png" "$script"
done
