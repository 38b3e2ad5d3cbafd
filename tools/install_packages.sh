#!/usr/bin/env bash
# Installs the Debian packages that the build needs and that are not there yet; says what it installs.
# Arguments: further packages to install beside those of the build.
set -euo pipefail

wanted=(build-essential cmake ninja-build libssl-dev qt6-base-dev fonts-dejavu-core "$@")
engine_minimum=4.6

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else
        echo "This needs administrator rights: sudo $*"
        sudo "$@"
    fi
}

installed() { dpkg-query --show --showformat '${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed; }

engine_is_new_enough() {
    local version
    version=$(dpkg-query --show --showformat '${Version}' libsqlcipher-dev 2>/dev/null) || return 1
    dpkg --compare-versions "$version" ge "$engine_minimum"
}

# Debian 12 itself has an engine that is too old. The newer one lies in the backports of the same mirror that serves
# the release, so its address is taken from the machine's own settings.
add_backports() {
    local release mirror keyring
    release=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
    apt-get indextargets --format '$(SUITE) $(CODENAME)' 'Created-By: Packages' | grep -q "${release}-backports" && return
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "Codename: $release" 'Component: main' | head -n 1)
    if [ -z "$release" ] || [ -z "$mirror" ]; then
        echo "SQLCipher $engine_minimum or later is needed (libsqlcipher-dev), and no Debian mirror is set up to get it from." >&2
        exit 1
    fi
    keyring=/usr/share/keyrings/debian-archive-keyring.gpg
    echo "Adding ${release}-backports of your Debian mirror to the package sources, for SQLCipher $engine_minimum."
    echo "deb [signed-by=$keyring] $mirror ${release}-backports main" |
        as_root tee "/etc/apt/sources.list.d/${release}-backports.list" >/dev/null
}

missing=()
for package in "${wanted[@]}"; do
    installed "$package" || missing+=("$package")
done
engine_is_new_enough && engine_missing=no || engine_missing=yes
[ "${#missing[@]}" -eq 0 ] && [ "$engine_missing" = no ] && exit 0

export DEBIAN_FRONTEND=noninteractive
engine=()
if [ "$engine_missing" = yes ]; then
    as_root apt-get update -q
    candidate=$(apt-cache policy libsqlcipher-dev | sed -n 's/^ *Candidate: //p')
    if dpkg --compare-versions "${candidate:-0}" ge "$engine_minimum"; then
        engine=(libsqlcipher-dev)
    else
        add_backports
        engine=("libsqlcipher-dev/$(. /etc/os-release && echo "$VERSION_CODENAME")-backports"
            "libsqlcipher1/$(. /etc/os-release && echo "$VERSION_CODENAME")-backports")
    fi
fi
echo "Installing: ${missing[*]:-} ${engine[*]:-}"
as_root apt-get update -q
as_root apt-get install -y -q --no-install-recommends "${missing[@]}" "${engine[@]}"
