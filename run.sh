#!/usr/bin/env bash
# Builds this tree and opens the host on an example; --help says how.
set -euo pipefail

usage() {
    cat <<'TEXT'
usage: ./run.sh [EXAMPLE | PATH] [--tour] [--dark]

Installs the packages that are missing, builds, and opens the netlist editor on a copy of an example of
examples/ (by name; without one: rc-filter), or of the netlist at a path, which has a slash in it. A copy that
was changed is kept, and its path printed. Where ngspice is installed, the netlist is imported at once and
the browser shows its devices. In the editor: Tools > SPICE Command Wizard, or Ctrl+I, and Parameters.

Without a display (neither DISPLAY nor WAYLAND_DISPLAY is set, or QT_QPA_PLATFORM names a platform without
a screen) it takes the same windows on a tour that needs no screen: real key and mouse events browse a params
file and export a list of it, import copies of the examples where ngspice is installed, open the wizard,
insert commands into the copy and save it. It prints what that changed, and the folder with a picture of each
window.

  --tour  take the tour, display or not
  --dark  the tour in dark colours
  --help  this text
TEXT
}

refuse() {
    printf './run.sh: %s\n' "$1" >&2
    usage >&2
    exit 2
}

caller=$PWD
cd "$(dirname "${BASH_SOURCE[0]}")"

netlist=""
tour=false
colours=()
for argument in "$@"; do
    case $argument in
        --tour) tour=true ;;
        --dark) colours=(--dark) ;;
        --help | -h) usage; exit 0 ;;
        -*) refuse "unknown option: $argument" ;;
        *)
            [[ -z $netlist ]] || refuse "more than one netlist: $argument"
            case $argument in
                /*) netlist=$argument ;;
                */*) netlist=$caller/$argument ;;
                *) netlist=examples/${argument%.cir}.cir ;;
            esac
            [[ -f $netlist ]] || refuse "there is no netlist $argument"
            ;;
    esac
done
netlist=${netlist:-examples/rc-filter.cir}
if [[ -z ${DISPLAY:-} && -z ${WAYLAND_DISPLAY:-} ]]; then
    tour=true
fi
case ${QT_QPA_PLATFORM:-} in
    offscreen* | minimal*) tour=true ;;
esac
if ((${#colours[@]} > 0)) && ! $tour; then
    refuse "--dark goes with --tour; on a display the desktop's colours are taken"
fi

# ccache fails a compile when it cannot write its store, as in a container without a home.
if [[ -z ${CCACHE_DIR:-} && ! -w ${HOME:-/nonexistent} ]]; then
    export CCACHE_DIR=$PWD/build/ccache
fi

scripts/setup
cmake --preset dev -DQUORVAWIZ_WERROR=ON
cmake --build --preset dev --target quorvahost quorvahost-tour quorvawiz-cli

folder=$(mktemp -d "${TMPDIR:-/tmp}/quorvawiz-run.XXXXXX")
copy=$folder/$(basename "$netlist")
cp "$netlist" "$copy"
echo

if ! $tour; then
    echo "./run.sh: opening $copy, a copy of $netlist"
    status=0
    import=()
    if command -v ngspice > /dev/null; then
        import=(--import)
    fi
    build/dev/bin/quorvahost "$copy" ${import[@]+"${import[@]}"} || status=$?
    if cmp --silent "$netlist" "$copy"; then
        rm -r "$folder"
    else
        echo "./run.sh: the copy with the changes is $copy"
    fi
    exit "$status"
fi

# All of it goes again but the pictures.
trap 'rm -rf "$folder"' EXIT
pictures=$(mktemp -d "${TMPDIR:-/tmp}/quorvawiz-pictures.XXXXXX")
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR=$folder/runtime
mkdir --mode=700 "$XDG_RUNTIME_DIR"
build/dev/bin/quorvawiz make-example "$folder/example.params" --devices 2000
mkdir "$folder/import"
cp examples/*.cir "$folder/import"
# The platform without a screen says of each window what it can't do; none of that is news.
build/dev/bin/quorvahost-tour ${colours[@]+"${colours[@]}"} \
    "$copy" "$pictures" "$folder/example.params" "$folder"/import/*.cir 2> >(grep --invert-match "^This plugin does not support" >&2)

echo "./run.sh: what the tour has changed in the netlist"
echo
# diff exits with 1 when there is a difference, which there has to be.
if diff --unified --label "before" "$netlist" --label "after" "$copy"; then
    echo "./run.sh: the tour has inserted nothing" >&2
    exit 1
fi
echo
echo "./run.sh: pictures of the windows, in $pictures"
ls "$pictures"
echo
echo "./run.sh: the first of the exported devices, in $pictures/devices.csv"
head -n 5 "$pictures/devices.csv"
