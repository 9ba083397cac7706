# A scratch folder, a virtual display, and processes that end with the script. Sourced by ./bench and
# packaging/picture-on-virtual-display: what they start in the background they add to `started`.

scratch=$(mktemp -d)
started=()
leave() {
    local i
    # The display last, for the others stand on it.
    for ((i = ${#started[@]} - 1; i >= 0; --i)); do
        kill "${started[i]}" 2>/dev/null || true
        wait "${started[i]}" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap leave EXIT
trap 'exit 1' INT TERM

# A black, empty display of its own, for all that is started from now on. It stays when its last
# window goes.
start_display() {
    local number
    mkfifo "$scratch/number"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$scratch/number" 2>/dev/null &
    started+=("$!")
    read -r number <"$scratch/number" || { echo "L'écran virtuel ne s'est pas ouvert." >&2; exit 1; }
    export DISPLAY=:$number
    unset WAYLAND_DISPLAY
}
