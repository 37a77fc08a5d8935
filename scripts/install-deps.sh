#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, only when one is
# missing, so it is quick on a machine that has them. Needs root (or sudo).
set -euo pipefail

PACKAGES=(
  build-essential cmake make pkg-config
  qt6-base-dev libgl1-mesa-dev qt6-multimedia-dev libqt6multimedia6
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  nlohmann-json3-dev
  xvfb xauth
)
# `make fuzz` (install-deps.sh --fuzz): clang and its fuzzing runtime.
if [ "${1:-}" = "--fuzz" ]; then
  PACKAGES=(clang libclang-rt-dev)
fi

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
