#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Usage: scripts/try_debian.sh RELEASE [--dry-run], for example: scripts/try_debian.sh trixie
# Tries the last commit on another release of Debian, as a new user would. Makes a bare system of that release from the
# package mirror of this machine, clones the project into the system, and runs ./play and ./check there. At the end,
# removes the system and keeps only the screenshot and the logs, in build/debian-RELEASE. If this script is killed with
# SIGKILL, the processes of the system end, but the files of the system stay until the next run.
# With --dry-run, only checks whether such a system can be made.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh
trap 'fail "Interrupted."' INT TERM HUP
release=${1-}
folder=build/debian-$release
root=$folder/root
clone=home/player/zampotine

# Prints apt settings for the new system: the proxies of this machine, and whether apt checks the dates of package
# lists here.
apt_settings() {
    local scheme proxy
    for scheme in http https; do
        proxy=${scheme}_proxy
        [[ -z ${!proxy-} ]] || echo "Acquire::$scheme::Proxy \"${!proxy}\";"
    done
    apt-config dump | grep -E '^Acquire::(https?::Proxy(::| )|Check-(Date|Valid-Until) )' || true
}

# If this script runs in a chroot, mounts could stay after the namespaces have ended. So the root becomes a private mount
# first. All later mounts are under it and end with the namespaces.
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

# inside ARCHIVE: runs as process 1 of new namespaces. Makes the system from the archive and tries the project there.
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
        ((status == 0)) || fail "$command failed on Debian $release. The logs are in $folder."
    done
}

remove_root() {
    local end=$((SECONDS + 20))
    umount --lazy "$root" 2>/dev/null || true
    # Processes that were just killed may still be writing to the folders.
    until rm -rf --one-file-system "$root" "$folder/tmp" 2>/dev/null; do
        ((SECONDS < end)) || fail "The folder $root could not be removed. Remove it yourself."
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
    fail "Usage: scripts/try_debian.sh RELEASE [--dry-run], for example: scripts/try_debian.sh trixie"
[[ $EUID == 0 ]] || fail "Only root can make a system of another release. Run this script as root."
namespaces=(unshare --mount --pid --fork --kill-child --mount-proc)
# Inside a chroot, unshare cannot make the existing mounts private.
"${namespaces[@]}" true 2>/dev/null || namespaces+=(--propagation unchanged)
"${namespaces[@]}" true 2>/dev/null || fail "This machine does not allow namespaces, so no other system can run here."
scripts/install.sh root
git rev-parse --quiet --verify HEAD >/dev/null 2>&1 || fail "Git finds no commit here. Run this script in a clone that you own."

system=
mkdir -p "$folder"
exec 9<"$folder"
flock --nonblock 9 || fail "Another run of this script is trying Debian $release in this clone. Wait until that run has ended."
trap clean_up EXIT

archive=$(apt-get indextargets 'Label: Debian' 'Component: main' | sed -n 's/^Repo-URI: //p')
archive=${archive%%$'\n'*}
[[ -n $archive ]] || fail "apt knows no Debian archive. Run apt-get update, then try again."
remove_root # A killed run may have left it.
mkdir "$folder/tmp"
/usr/lib/apt/apt-helper download-file "${archive%/}/dists/$release/InRelease" "$folder/tmp/InRelease" >/dev/null 2>&1 ||
    fail "There is no release '$release' in $archive, or the network is down. Check both."
[[ $# == 1 ]] || exit 0
rm -f "$folder"/*.{log,png}
git diff --quiet HEAD || say "Your uncommitted changes are not tried, only the last commit."
# The shell starts background jobs with SIGINT ignored. Without env, all programs in the system would ignore SIGINT.
setsid setpriv --pdeathsig KILL env --default-signal "${namespaces[@]}" \
    scripts/try_debian.sh "$release" inside "$archive" &
system=$!
status=0
wait "$system" || status=$?
system=
((status == 0)) || {
    ((status == 1)) || fail "The processes of the system were killed."
    exit 1
}
say "Debian $release: ./play and ./check passed. The screenshot is in $folder/zampotine.png."
