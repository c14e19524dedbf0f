# Shared by the scripts beside it, which source it first.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}

fail() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# A script's help is the comment at its top.
help_if_asked() {
    if [[ ${1:-} == --help || ${1:-} == -h ]]; then
        sed -n '2,/^[^#]/ { s/^# \{0,1\}//p }' "$0"
        exit 0
    fi
}

refuse_arguments() {
    (($# == 0)) || fail "unexpected argument \"$1\"; see --help"
}

step_name=
step_start=0

# Ends the step before it, saying how long that one took.
step() {
    finish_step
    step_name=$1
    step_start=$SECONDS
    printf '\n== %s\n' "$step_name"
}

finish_step() {
    if [[ -n $step_name ]]; then
        printf '   %s: %d s\n' "$step_name" $((SECONDS - step_start))
        step_name=
    fi
}

# build PRESET TARGET...: configures the preset and builds the targets, everything when none is named.
build() {
    local preset=$1
    shift
    cmake --preset "$preset" >"build/$preset.configure.log" 2>&1 ||
        { cat "build/$preset.configure.log" >&2 && fail "cannot configure the $preset build"; }
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# Every C++ file of the project: those that git tracks and those that it would.
cpp_files() {
    git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h' | existing
}

existing() {
    while IFS= read -r file; do
        [[ ! -e $file ]] || printf '%s\n' "$file"
    done
}

mkdir -p build
