#!/usr/bin/env bash
# Builds and tests this tree; --help says how.
set -euo pipefail

usage() {
    cat <<'TEXT'
usage: ./test.sh [--asan | --tidy [--quick]]

Without options: installs the packages that are missing, builds the preset "dev", runs every test.

  --asan   the same under the address and undefined behaviour sanitizers
  --tidy   formatting, every header compiled alone, clang-tidy; runs no tests
  --quick  with --tidy: without clang-tidy
  --help   this text
TEXT
}

refuse() {
    printf './test.sh: %s\n' "$1" >&2
    usage >&2
    exit 2
}

asan=false
tidy=false
quick=false
for argument in "$@"; do
    case $argument in
        --asan) asan=true ;;
        --tidy) tidy=true ;;
        --quick) quick=true ;;
        --help | -h) usage; exit 0 ;;
        *) refuse "unknown option: $argument" ;;
    esac
done
if $asan && $tidy; then
    refuse "--asan and --tidy are runs of their own"
fi
if $quick && ! $tidy; then
    refuse "--quick goes with --tidy"
fi

cd "$(dirname "${BASH_SOURCE[0]}")"

# ccache fails a compile when it cannot write its store, as in a container without a home.
if [[ -z ${CCACHE_DIR:-} && ! -w ${HOME:-/nonexistent} ]]; then
    export CCACHE_DIR=$PWD/build/ccache
fi

if $tidy; then
    scripts/setup --tidy
    # Writes the generated headers.
    cmake --preset dev -DQUORVAWIZ_WERROR=ON
    scripts/check-format
    scripts/check-headers
    if ! $quick; then
        scripts/check-tidy
    fi
    exit 0
fi

preset=dev
if $asan; then
    preset=asan
fi
scripts/setup
cmake --preset "$preset" -DQUORVAWIZ_WERROR=ON
cmake --build --preset "$preset"
# The sanitizers' options stand in the test preset, so that a plain ctest has them too.
ctest --preset "$preset" --parallel "$(nproc)"
