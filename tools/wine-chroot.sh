#!/usr/bin/env bash
# A Debian 12 chroot with 32- and 64-bit Wine, for hosts whose own i386 packages cannot match
# their amd64 ones. Built once from the main archive (never the security one, whose i386 index
# may lag) and kept outside the clone, so later runs on the same machine reuse it.
#   tools/wine-chroot.sh ensure    builds it when missing; prints its folder
#   tools/wine-chroot.sh enter CMD runs CMD inside it with /proc and /dev mounted
set -euo pipefail
ROOT=${PELLAM_CHROOT:-/var/cache/pellam-chroot}
# Xvfb for the form's window in 32 bits.
PACKAGES=(wine wine64 wine32:i386 fonts-wine xvfb)

mirror() {
  apt-get indextargets --format '$(REPO_URI)' | grep -v -- '-security' | sort -u | head -1
}

ensure() {
  if [ -f "$ROOT/.pellam-ready" ]; then
    # A chroot kept from before a package joined the list gets it now.
    local p missing=()
    for p in "${PACKAGES[@]}"; do
      chroot "$ROOT" dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    if [ ${#missing[@]} -gt 0 ]; then
      chroot "$ROOT" apt-get update -qq >&2
      DEBIAN_FRONTEND=noninteractive chroot "$ROOT" apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
    fi
    echo "$ROOT"
    return 0
  fi
  rm -rf "$ROOT.partial"
  local url
  url=$(mirror)
  url=${url:-http://deb.debian.org/debian/}
  debootstrap --variant=minbase bookworm "$ROOT.partial" "$url" >&2
  chroot "$ROOT.partial" dpkg --add-architecture i386
  chroot "$ROOT.partial" apt-get update -qq >&2
  DEBIAN_FRONTEND=noninteractive chroot "$ROOT.partial" apt-get install -y -qq --no-install-recommends "${PACKAGES[@]}" >&2
  touch "$ROOT.partial/.pellam-ready"
  rm -rf "$ROOT"
  mv "$ROOT.partial" "$ROOT"
  echo "$ROOT"
}

enter() {
  mountpoint -q "$ROOT/proc" || mount -t proc proc "$ROOT/proc"
  mountpoint -q "$ROOT/dev" || mount --bind /dev "$ROOT/dev"
  local status=0
  chroot "$ROOT" /usr/bin/env -i PATH=/usr/local/bin:/usr/bin:/bin HOME=/root "$@" || status=$?
  umount "$ROOT/dev" "$ROOT/proc" 2>/dev/null || true
  return $status
}

case "${1:-}" in
  ensure) ensure ;;
  enter) shift; enter "$@" ;;
  *) echo "usage: $0 ensure | enter CMD..." >&2; exit 2 ;;
esac
