# shellcheck shell=bash
# The Debian packages that Clinorama needs, and a function that installs those that are missing.
# This file is sourced by the scripts beside it; it does nothing by itself.

# To build. The tests' and the benchmarks' libraries are small and belong to every configuration.
# shellcheck disable=SC2034  # the lists are read by the scripts that source this file
build_packages=(
  g++ cmake ninja-build pkgconf
  qt6-base-dev qt6-svg-dev
  libgtest-dev libbenchmark-dev libmuparser-dev
)

# To run. The pages ask for these two fonts by name.
# shellcheck disable=SC2034
run_packages=(fonts-dejavu-core fonts-comic-neue)

# To run on a virtual display, and to look at that display from elsewhere.
# shellcheck disable=SC2034
display_packages=(xvfb openbox xauth x11-utils)
# shellcheck disable=SC2034
viewing_packages=(x11vnc)

# To test: real windows are driven by keys and on an accessibility bus, a random user fills the
# toolkit's own queue of events, and the layout of the code is checked.
# shellcheck disable=SC2034
test_packages=(
  xdotool imagemagick at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
  qt6-base-private-dev clang-format-16
)

# To fuzz (the preset "fuzz").
# shellcheck disable=SC2034
fuzz_packages=(clang libclang-rt-14-dev)

# To build for a browser (scripts/browser): the compiler, the fonts and what makes them small, and
# what draws the icon in the sizes of tablets.
# shellcheck disable=SC2034
browser_packages=(
  emscripten cmake ninja-build googletest
  fonts-dejavu-core fonts-comic-neue python3 python3-fonttools python3-brotli
  librsvg2-bin
)

# To test in a browser (tests/browser); npm brings what drives it.
# shellcheck disable=SC2034
browser_test_packages=(chromium)

# To typeset the text pictures (scripts/pages): their fonts, asked for by name. Node.js comes on top.
# shellcheck disable=SC2034
page_packages=(fonts-crosextra-carlito fonts-oflb-asana-math fonts-comic-neue)

# To examine the code by hand (scripts/lint).
# shellcheck disable=SC2034
lint_packages=(clang-tidy)

# To make packages (scripts/package): the icons, the dependencies, and the checks of what was made.
# shellcheck disable=SC2034
package_packages=(librsvg2-bin dpkg-dev file appstream desktop-file-utils lintian man-db)

# Installs those of the packages named in the arguments that are missing, without asking questions.
# Says nothing and needs no network when there is nothing to install. Fails when it may not install.
ensure_packages() {
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no Debian packages. Please see to the counterparts of: $*" >&2
    return 0  # They may well be there; if not, the step that needs them says so.
  fi

  local package missing=()
  for package in "$@"; do
    if [[ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return 0
  fi

  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Some packages are missing. Please install them as root, then try again:" >&2
      echo "  apt-get install --no-install-recommends ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
    if [[ ! -t 0 ]]; then
      as_root+=(-n)  # Nobody is there to type a password: fail instead of waiting.
    fi
  fi

  echo "Installing: ${missing[*]}"
  # Another installation may be under way: wait for its lock.
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive
             apt-get -qq -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0)
  if ! "${apt[@]}" update </dev/null ||
     ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null >/dev/null; then
    echo "The packages could not be installed: ${missing[*]}" >&2
    return 1
  fi
}
