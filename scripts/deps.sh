#!/usr/bin/env bash
# Installs what the build needs from Debian's packages, only when missing.
set -euo pipefail
packages=(cmake ninja-build g++ libeigen3-dev libboost-dev libgtest-dev libgmock-dev libbenchmark-dev libsleef-dev pkg-config)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  echo "installing: ${missing[*]}"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
