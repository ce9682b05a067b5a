#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, only those that are missing.
set -euo pipefail
pkgs=(build-essential cmake pkg-config qt6-base-dev qt6-base-dev-tools libgl-dev
      libgtest-dev googletest libbenchmark-dev fonts-dejavu-core qt6-qpa-plugins)
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
