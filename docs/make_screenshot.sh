#!/usr/bin/env bash
# Makes docs/desktop.png: the example field in the desktop program, from the import to a finished design, by keys alone
# on a screen of its own.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$root/scripts/common.sh"

install_packages "${build_packages[@]}" "${desktop_packages[@]}" xvfb openbox xdotool x11-xserver-utils imagemagick fonts-dejavu-core
configure release -DVELN_DESKTOP=ON
build release --target veln-qtrd
release_build_tree

folder=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; wait; rm -rf "$folder"' EXIT
export HOME=$folder XDG_CONFIG_HOME=$folder/.config QT_QPA_PLATFORM=xcb
prepare_program_folder "$folder/program"

Xvfb -displayfd 4 -screen 0 1440x680x24 -nolisten tcp 4>"$folder/display" 2>/dev/null &
until [[ -s $folder/display ]]; do sleep 0.1; done
export DISPLAY=:$(<"$folder/display")
openbox >/dev/null 2>&1 &
sleep 1
xset r off
xsetroot -solid '#6b7785'
(cd "$folder/program" && exec "$root/build/release/src/desktop/veln-qtrd" 2>/dev/null) &

# keys KEY...: one after the other, each once the last has had its effect. text TEXT: typed.
keys() {
    local key
    for key in "$@"; do
        xdotool key --clearmodifiers "$key"
        sleep 0.5
    done
}

text() {
    xdotool type --delay 40 "$1"
    sleep 0.5
}

main=$(xdotool search --sync --onlyvisible --name 'VELN-QTRD Software' | head -n 1)
xdotool windowmove --sync "$main" 16 36
keys alt+f p alt+n
text demo
keys Return alt+d
text 'Example transect survey'
keys alt+f
text DEMO
keys Return ctrl+t
text "$root/examples/transect_1500.txt"
keys alt+i alt+s Return
keys alt+a d Return Return
keys alt+a v alt+m Return Return
keys alt+d c Return
sleep 2
import -window root -strip "$root/docs/desktop.png"
