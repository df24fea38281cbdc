# Sourced by the other scripts. Installs the Debian packages they need.

# Installs the named packages that are missing and lists them.
need() {
  command -v dpkg-query >/dev/null || return 0 # not Debian: the user installs them
  local package missing=()
  for package in "$@"; do
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
      missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  local as_root=()
  if ((EUID != 0)); then
    command -v sudo >/dev/null || {
      echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
      exit 1
    }
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}" >&2
  {
    "${as_root[@]}" apt-get update -q &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
  } >&2
}

build_packages=(g++ cmake ninja-build)
qt_packages=(qt6-base-dev qt6-qpa-plugins libqt6sql6-sqlite libgl-dev fonts-dejavu-core)
json_packages=(libsimdjson-dev)
test_packages=("${json_packages[@]}" libgtest-dev pkgconf)
# For the test that reads a list as a screen reader does.
screen_reader_packages=(at-spi2-core dbus python3-pyatspi xauth xdotool xvfb)
clang_packages=(clang libclang-rt-dev)
windows_packages=(g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix)
benchmark_packages=(libbenchmark-dev)
# The compiler of the type library and the files it needs.
windows_build_packages=("${windows_packages[@]}" mingw-w64-tools libwine zip googletest)
wine_packages=(wine64 xvfb xauth xdotool)
