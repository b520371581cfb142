# Sourced by scripts that work in a bare Debian root. They set `root`, the root's folder, and call
# `unmount_root` when they exit.

mounted=

# One word for each option is intended. shellcheck disable=SC2086
mount_once() {
    mountpoint -q "$root/$2" && return
    mount $1 "$root/$2"
    mounted="$root/$2 $mounted"
}

mount_root() {
    mount_once "-t proc proc" proc
    mount_once "-t sysfs -o ro sys" sys
    mount_once "--rbind --make-rslave /dev" dev
}

unmount_root() {
    for point in $mounted; do umount --recursive "$point"; done
    mounted=
}

# Runs a command in the root, with nothing of this machine's environment.
inside() {
    chroot "$root" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}
