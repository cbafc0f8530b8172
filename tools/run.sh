#!/usr/bin/env bash
# Installs what is missing, builds pellam and runs the bundled example job.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/packages.sh
ensure_packages "${BUILD_PACKAGES[@]}"
cmake --preset app >/dev/null
cmake --build --preset app
exec build/app/apps/cli/pellam run examples/new-job.pellam
