# shellcheck shell=bash disable=SC2034
# A foreign root for the scripts that try what is packed: sourced by them, as root. Sets root to the system of a SUITE,
# whose changes are forgotten at the end; all that runs in it ends with the script.
[ "$(id -u)" -eq 0 ] || { echo "$0 needs root, for a system of its own." >&2; exit 2; }
if [ -z "${ZEMBROLIX_ROOT_BEGUN:-}" ]; then
    exec env ZEMBROLIX_ROOT_BEGUN=yes unshare --mount --pid --fork --kill-child --propagation private "$0" "$@"
fi
packaging/install.sh screen root
work=$(mktemp -d)
finish() {
    umount -R -l "$work/root" "$work/changes" 2>/dev/null || true
    rm -rf --one-file-system "$work"
}
trap finish EXIT

# The system as it is new, kept in the cache of the user.
new_root() { # suite
    local base=${XDG_CACHE_HOME:-$HOME/.cache}/zembrolix-roots/$1
    if [ ! -e "$base.ready" ]; then
        rm -rf "$base"
        mkdir -p "$base"
        debootstrap --variant=minbase "$1" "$base" "${ZEMBROLIX_MIRROR:-http://deb.debian.org/debian}" >"$base.log" 2>&1 ||
            { tail "$base.log" >&2; exit 1; }
        touch "$base.ready"
    fi
    root=$work/root
    mkdir "$work/changes" "$root"
    mount -t tmpfs tmpfs "$work/changes"
    mkdir "$work/changes/upper" "$work/changes/work"
    mount -t overlay overlay -o "lowerdir=$base,upperdir=$work/changes/upper,workdir=$work/changes/work" "$root"
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mkdir -p "$root/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
}
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
# Makes a user in it, and a program that runs a command there as that user, on the display that is set: $user.
new_user() { # name, language, what goes ahead of the command
    inside useradd --create-home --shell /bin/bash "$1"
    home=$root/home/$1
    user=$work/as_$1
    cat >"$user" <<END2
#!/bin/sh
exec ${3:-} chroot --userspec=$1:$1 "$root" env -i PATH=/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games HOME=/home/$1 \\
    LANG=$2 DISPLAY="\$DISPLAY" "\$@"
END2
    chmod +x "$user"
}
# Plays the demonstration in a directory of the root, by a command.
play() { # what is said, directory, command
    local said=$1 directory=$2
    shift 2
    tests/with_screen.sh packaging/tour.sh "$root$directory" "$work/pictures" "$user" "$@" >"$work/log" 2>&1 ||
        { cat "$work/log"; fail "$said: the demonstration isn't played"; }
    passed "$said: the demonstration played"
}
