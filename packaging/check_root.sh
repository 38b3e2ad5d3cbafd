# Sourced by packaging/check: a root that holds what a package depends on and nothing else.

player=65534

# The packages of this machine that a package file needs to be installed, without those that it only recommends.
needed_packages() {
    {
        dpkg-query --show --showformat '${Essential} ${Package}\n' | sed -n 's/^yes //p'
        dpkg-deb --field "$1" Depends | tr ',|' '\n\n' | sed 's/(.*//; s/ //g'
    } | sort -u |
        xargs apt-cache depends --recurse --installed --no-recommends --no-suggests --no-conflicts --no-breaks \
            --no-replaces --no-enhances |
        sed -n 's/^\([a-z0-9][^ :]*\).*/\1/p' | sort -u |
        { xargs dpkg-query --show --showformat '${db:Status-Status} ${Package}:${Architecture} ${Package}\n' 2>/dev/null ||
            true; } |
        sed -n 's/^installed //p'
}

# Takes the packages' files from this machine, and what dpkg knows of them, so that dpkg checks the dependencies itself.
make_root() {
    local root=$1 known=$1/var/lib/dpkg package_name name
    # What the links of the root folder lead to must be there before files are put behind them.
    mkdir -p "$known/info" "$known/updates" "$root"/usr/{bin,sbin,lib,lib64}
    needed_packages "$2" | while read -r package_name name; do
        dpkg-query --status "$package_name" >>"$known/status"
        echo >>"$known/status"
        for list in "$name" "${package_name/%:all/}"; do
            [ ! -e "/var/lib/dpkg/info/$list.list" ] || cp "/var/lib/dpkg/info/$list.list" "$known/info/"
        done
        dpkg-query --listfiles "$package_name"
    done | grep '^/[^.]' | sort -u |
        tar --create --no-recursion --ignore-failed-read --warning=no-failed-read --files-from - 2>/dev/null |
        tar --extract --directory "$root" --keep-directory-symlink
    mkdir -p "$root/dev"
    mknod -m 666 "$root/dev/null" c 1 3 && chroot "$root" ldconfig ||
        fail "a clean root needs the right to make a device and to chroot, which this machine does not give to root"
}

in_dpkg() { dpkg --root="$root" --log=/dev/null "$@" >/dev/null; }

# Runs a command as a player with an empty home; settings for its environment may stand before it. The call becomes the
# command, so it is to be made in the background or in a subshell.
as_player() {
    exec chroot --userspec="$player:$player" "$root" /usr/bin/env -i HOME=/home/player PATH=/usr/bin:/bin LC_ALL=C.UTF-8 \
        QT_QPA_PLATFORM=offscreen "$@"
}
