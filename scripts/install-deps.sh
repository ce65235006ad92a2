#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the window need.
# Idempotent: packages already present are not touched, and nothing is
# printed when everything is there.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git
  libcurl4-openssl-dev libjsoncpp-dev libssl-dev libcpp-httplib-dev ca-certificates
  libpugixml-dev libcairo2-dev libpango1.0-dev librsvg2-dev libsdl2-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-14-dev clang-format-14
  xvfb xauth xdotool x11-apps
  fonts-dejavu-core fonts-noto-core fonts-noto-cjk fonts-thai-tlwg
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

if [ "$(id -u)" -ne 0 ]; then
  echo "install-deps: missing packages: ${missing[*]}" >&2
  echo "install-deps: run as root, or install them with apt-get" >&2
  exit 1
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
