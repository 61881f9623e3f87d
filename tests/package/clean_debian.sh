# shellcheck shell=bash
# An empty Debian with a display, for what lives with the package there; as root, with the net. The empty
# Debian is kept in build/clean-debian.
#
# A failure leaves build/SCRIPT-failure.png; with TILL_PICTURE=PREFIX the scripts leave pictures as they go.

cache=build/clean-debian
started=()

# The first thing a script does, with its own arguments: sets `package`, the temporary folder `work` and
# the Debian's `root`, and works in the tree's root. What is mounted goes with the process.
begin() {
  [[ -n ${TILL_OWN_MOUNTS:-} ]] || TILL_OWN_MOUNTS=yes exec unshare --mount "$0" "$@"
  # shellcheck disable=SC2034  # for the caller
  package=$(realpath "$1")
  cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit
  rm -f "build/${0##*/}-failure.png"
  work=$(mktemp -d)
  root=$work/root
  trap clean_up EXIT
}

clean_up() {
  for ((i = ${#started[@]} - 1; i >= 0; --i)); do  # the X server last
    kill "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
  for place in "$work"/*/{tmp/.X11-unix,var/cache/apt/archives,dev/pts,dev/shm,proc}; do
    umount --lazy "$place" 2>/dev/null || true
  done
  rm -rf --one-file-system "$work"
}

picture() { [[ -z ${TILL_PICTURE:-} ]] || import -window root "$TILL_PICTURE-$1.png"; }

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  [[ -z ${DISPLAY:-} ]] || ! import -window root "build/${0##*/}-failure.png" ||
    printf 'what the screen shows is in build/%s-failure.png\n' "${0##*/}" >&2
  exit 1
}

note() { printf '   %s\n' "$*"; }

start() {
  "$@" &
  started+=($!)
}

# For so many seconds: PATIENCE=N wait_until COMMAND...
wait_until() {
  local patience=$((SECONDS + ${PATIENCE:-60}))
  until "$@"; do
    ((SECONDS < patience)) || fail "waited in vain for: $*"
    sleep 0.1
  done
}

# Commands in the clean Debian, by its administrator and by one of its users.
inside() {
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    DISPLAY="${DISPLAY:-}" chroot "$root" "$@"
}
as() {
  inside setpriv --reuid="$1" --regid="$1" --init-groups env HOME="/home/$1" USER="$1" "${@:2}"
}

apt() {
  inside apt-get --quiet=2 --yes "$@" >"$work/apt.log" 2>&1 || {
    cat "$work/apt.log" >&2
    fail "apt-get $*"
  }
}

expect() {
  [[ $2 == "$3" ]] || fail "$1: $2 instead of $3"
}

# How many bills are settled in the folder `shop`, as that user reads them.
bills() {
  local all open
  read -r all open < <(as "$1" tilladmin check "$shop/data/POS.mdb" 2>/dev/null |
    sed -n 's/^账目正确：单据 \([0-9]*\) 张（其中未结 \([0-9]*\) 张.*/\1 \2/p') && echo $((all - open))
}

make_clean_debian() {
  if [[ ! -e $cache/made ]]; then
    local mirror
    # shellcheck disable=SC2016  # apt-get's own placeholder
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Codename: bookworm' | head -n 1)
    rm -rf "$cache" && mkdir -p "$cache/archives/partial"
    debootstrap --variant=minbase bookworm "$cache/root" "${mirror:-http://deb.debian.org/debian}" \
      >"$work/debootstrap.log" || { tail "$work/debootstrap.log" >&2; fail "debootstrap"; }
    touch "$cache/made"
  fi
  cp --archive --reflink=auto "$cache/root" "$root"
  mount -t proc proc "$root/proc"
  mount --bind "$cache/archives" "$root/var/cache/apt/archives"  # fetched once
  echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/thrown-away-anyway"
  mkdir "$root/tmp/.X11-unix"
  apt update
}

start_display() {
  local number
  mkfifo "$work/number"
  exec 5<>"$work/number"
  start Xvfb -displayfd 5 -screen 0 1024x768x24 -nolisten tcp -noreset -ac 2>/dev/null
  read -r -t 30 -u 5 number || fail "no X server"
  export DISPLAY=:$number
  mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
  wait_until xdotool getdisplaygeometry >/dev/null 2>&1
}
