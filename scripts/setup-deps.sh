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
# sudo resets the environment, so the non-interactive front end is passed through env.
run=(env DEBIAN_FRONTEND=noninteractive)
[ "$(id -u)" -ne 0 ] && run=(sudo "${run[@]}")
"${run[@]}" apt-get update -qq
"${run[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
