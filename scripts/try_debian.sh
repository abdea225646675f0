#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Tries the last commit on another release of Debian, as a new user would: makes a bare system of that release from the
# package mirror of this machine, clones the project into it, and runs ./play and ./check there. Keeps the screenshot and
# the logs in build/debian-RELEASE, and nothing else, even if this script is killed: scripts/try_debian.sh trixie
# With --dry-run after the release, only checks whether such a system can be made.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh
trap 'fail "Interrupted."' INT TERM HUP
release=${1-}
folder=build/debian-$release
root=$folder/root
clone=home/player/zampotine

# The settings of apt for proxies and for the age of package lists.
apt_settings() {
    local scheme proxy
    for scheme in http https; do
        proxy=${scheme}_proxy
        [[ -z ${!proxy-} ]] || echo "Acquire::$scheme::Proxy \"${!proxy}\";"
    done
    apt-config dump | grep -E '^Acquire::(https?::Proxy(::| )|Check-(Date|Valid-Until) )' || true
}

# All mounts are under a private mount, because inside a chroot they could otherwise remain after the namespaces end.
make_root() {
    mkdir -p "$root" "$folder/tmp" && mount --bind "$root" "$root" && mount --make-private "$root" &&
        apt_settings >"$folder/tmp/apt.conf" &&
        TMPDIR=$PWD/$folder/tmp mmdebstrap --mode=root --variant=apt --include=ca-certificates,git,passwd,sudo \
            --dpkgopt=force-unsafe-io --aptopt="$folder/tmp/apt.conf" "$release" "$root" "$1" &&
        { cat /etc/hosts 2>/dev/null; echo "127.0.0.1 localhost $(uname -n)"; } >"$root/etc/hosts" &&
        mount -t proc proc "$root/proc" &&
        mount -t tmpfs -o mode=755 dev "$root/dev" &&
        cp -a /dev/{fd,full,null,random,stderr,stdin,stdout,tty,urandom,zero} "$root/dev" &&
        mkdir "$root"/dev/{pts,shm} && ln -s pts/ptmx "$root/dev/ptmx" &&
        mount -t devpts -o newinstance,gid=5,mode=620,ptmxmode=666 devpts "$root/dev/pts" &&
        mount -t tmpfs -o mode=1777 shm "$root/dev/shm"
}

make_clone() {
    chroot "$root" useradd --create-home --shell /bin/bash player &&
        echo 'player ALL=(ALL) NOPASSWD: ALL' >"$root/etc/sudoers.d/player" &&
        git -c advice.detachedHead=false clone --quiet --no-local --depth=1 . "$root/$clone" &&
        chroot "$root" chown -R player: "/$clone"
}

# This part runs in its own namespaces.
inside() {
    local archive=$1 command status
    say "Making a bare system of Debian $release."
    logged "debian-$release/root" make_root "$archive" ||
        fail "The system could not be made (see $folder/root.log)."
    logged "debian-$release/clone" make_clone || fail "The clone could not be made (see $folder/clone.log)."
    for command in ./play ./check; do
        say "Debian $release: $command."
        status=0
        chroot "$root" su --login player --command "cd zampotine && $command" || status=1
        cp "$root/$clone"/build/*.{log,png} "$folder" 2>/dev/null || true
        ((status == 0)) || fail "$command failed on Debian $release; its logs are in $folder."
    done
}

remove_root() {
    local end=$((SECONDS + 20))
    umount --lazy "$root" 2>/dev/null || true
    # Killed processes may still be writing.
    until rm -rf --one-file-system "$root" "$folder/tmp" 2>/dev/null; do
        ((SECONDS < end)) || fail "The folder $root could not be removed; remove it."
        sleep 0.1
    done
}

clean_up() {
    trap '' INT TERM HUP
    [[ -z $system ]] || { kill -KILL "$system" && wait "$system"; } 2>/dev/null || true
    remove_root
    rmdir "$folder" 2>/dev/null || true
}

if [[ ${2-} == inside && $$ == 1 ]]; then
    inside "$3"
    exit
fi

[[ $release =~ ^[a-z]+$ && ($# == 1 || ${*:2} == --dry-run) ]] ||
    fail "Name a release of Debian, such as: scripts/try_debian.sh trixie"
[[ $EUID == 0 ]] || fail "Only root can make a system of another release; run this as root."
namespaces=(unshare --mount --pid --fork --kill-child --mount-proc)
# Inside a chroot, unshare cannot make the existing mounts private.
"${namespaces[@]}" true 2>/dev/null || namespaces+=(--propagation unchanged)
"${namespaces[@]}" true 2>/dev/null || fail "This machine does not allow namespaces, so no other system can run here."
scripts/install.sh root
git rev-parse --quiet --verify HEAD >/dev/null 2>&1 || fail "Git finds no commit here; run this in a clone that you own."

system=
mkdir -p "$folder"
exec 9<"$folder"
flock --nonblock 9 || fail "Another run tries Debian $release in this clone; wait until it has ended."
trap clean_up EXIT

archive=$(apt-get indextargets 'Label: Debian' 'Component: main' | sed -n 's/^Repo-URI: //p')
archive=${archive%%$'\n'*}
[[ -n $archive ]] || fail "apt knows no Debian archive; run apt-get update, then run this again."
remove_root # left by a run that was killed
mkdir "$folder/tmp"
/usr/lib/apt/apt-helper download-file "${archive%/}/dists/$release/InRelease" "$folder/tmp/InRelease" >/dev/null 2>&1 ||
    fail "There is no release '$release' in $archive, or the network is down; check both."
[[ $# == 1 ]] || exit 0
rm -f "$folder"/*.{log,png}
git diff --quiet HEAD || say "Changes that are not committed are not tried."
# A shell starts background jobs with SIGINT ignored, and everything in the system would inherit that.
setsid setpriv --pdeathsig KILL env --default-signal "${namespaces[@]}" \
    scripts/try_debian.sh "$release" inside "$archive" &
system=$!
status=0
wait "$system" || status=$?
system=
((status == 0)) || {
    ((status == 1)) || fail "The system was killed."
    exit 1
}
say "Debian $release: ./play and ./check passed; the screenshot is $folder/zampotine.png."
