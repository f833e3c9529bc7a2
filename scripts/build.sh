# shellcheck shell=bash
# What the scripts that build have in common. This file is sourced by the scripts beside it, in the
# root of the checkout; it does nothing by itself.

# Waits until no other script builds in this checkout, and says so: two at once would write the same
# files. The turn ends with the script, however it ends, or by end_turn.
take_turn() {
  mkdir -p build
  exec {build_lock}>build/.lock
  if ! flock --nonblock "$build_lock"; then
    echo "Another scripts/run, test, soak, package or browser is building here: waiting for it." >&2
    flock "$build_lock"
  fi
}

end_turn() { exec {build_lock}>&-; }

# configure <preset> [option ...]: prepares build/<preset>.
configure() {
  local preset="$1" how=()
  # A checkout that was moved or copied brings a folder that belongs to another place.
  local cache="build/$preset/CMakeCache.txt"
  if [[ -f "$cache" ]] && ! grep -qxF -e "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" \
       -e "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "$cache"; then
    how+=(--fresh)
  fi
  # Ninja ends a path in the lists of included files at an apostrophe, and builds all again each time.
  if [[ "$PWD" == *\'* ]]; then
    how+=(-G "Unix Makefiles")
    export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL-$(nproc)}"
  fi
  cmake --preset "$preset" "${how[@]}" "${@:2}"
}

# build_browser [option ...]: compiles the program for a browser and puts it into build/browser.
build_browser() {
  configure wasm --log-level=WARNING "$@"
  cmake --build --preset wasm --target clinorama
  /usr/bin/python3 browser/make_site.py build/wasm build/browser
}

build_fuzzer() {
  configure fuzz --log-level=WARNING -DCLINORAMA_WERROR=ON
  cmake --build --preset fuzz
}

# fuzz_engine [option ...]: tells what it did, and all of it when it found something.
fuzz_engine() {
  local log=build/fuzz/log
  if ! build/fuzz/tests/fuzz/engine_fuzzer -print_final_stats=1 -artifact_prefix=build/fuzz/ "$@" \
       >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
  grep '^stat::number' "$log"
}
