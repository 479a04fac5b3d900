#!/usr/bin/env bash
# Builds the packages twice and tries them in a Debian root of their own, in the full run.
#   testPackages.sh REPOSITORY
. "$(dirname "${BASH_SOURCE[0]}")/../install/support.sh"
repository=$1
mirror=${QX_DEBIAN_MIRROR:-http://deb.debian.org/debian}
log=$work/log

if [ -z "${QX_FULL-}" ]; then
    echo "SKIP   : Packages(packages) are built and tried in the full run"
    exit 0
fi

# From a copy, in which nothing but what is kept in the repository can get into a package.
copy_sources() { # directory
    mkdir -p "$1"
    git -C "$repository" ls-files -z | (cd "$repository" && tar -c --null -T -) | tar -xC "$1"
    mkdir -p "$1/build"
    cp "$repository/build/packages" "$1/build/" # what was found installed
}
export SOURCE_DATE_EPOCH
SOURCE_DATE_EPOCH=$(git -C "$repository" log -1 --format=%ct)
for each in first second; do
    copy_sources "$work/$each/sources"
    "$work/$each/sources/package.sh" >"$log" 2>&1 || { fail packagesAreBuilt "$(tail -20 "$log")"; end_tests; }
    mkdir "$work/$each/packages"
    mv "$work/$each/sources/build/package"/*.deb "$work/$each/sources/build/package"/*.tar.gz "$work/$each/packages/"
done
sums() { # directory
    (cd "$1" && sha256sum -- *)
}
same packagesMadeTwiceAreTheSameBytes "$(sums "$work/first/packages")" "$(sums "$work/second/packages")"
rm -rf "$work/second"

packages=$work/first/packages
same packagesAreTwoAndATarball "$(printf '%s\n' quorvex-codegen-dev.deb quorvex-codegen.deb quorvex-codegen.tar.gz)" \
    "$(cd "$packages" && printf '%s\n' * | sed 's/[-_][0-9].*\(\.deb\|\.tar\.gz\)$/\1/' | LC_ALL=C sort)"
check lintianHasNothingToSay lintian --fail-on error,warning --allow-root "$packages"/*.deb
mkdir "$work/content"
for each in "$packages"/*.deb; do dpkg-deb -x "$each" "$work/content"; done
share=$work/content/usr/share
check menuEntryIsValid desktop-file-validate "$share/applications/com.quorvex.CodeGen.desktop"
check softwareCentresTakeTheDescription appstreamcli validate --no-net "$share/metainfo/com.quorvex.CodeGen.metainfo.xml"
check typeOfProjectsIsWellFormed xmllint --noout --nonet "$share/mime/packages/com.quorvex.CodeGen.xml"
same iconsHaveAllSizes "128x128 16x16 24x24 256x256 32x32 48x48 64x64" "$(cd "$share/icons/hicolor" && echo *)"
for page in qxgen.1 qxgen-generate.1 qxgen-list.1 qxgen-window.1 qxgen-lint-templates.1 qxgen-completion.1 codeGen.1 \
    qxproj.5 codegen-templates.7; do
    check "manHas $page" test -s "$share/man/man${page##*.}/$page.gz"
done
check completionIsThereForBash bash -n "$share/bash-completion/completions/qxgen"
check completionIsThereForZsh test -s "$share/zsh/vendor-completions/_qxgen"
check completionIsThereForFish test -s "$share/fish/vendor_completions.d/qxgen.fish"

# The tarball needs no administrator.
mkdir "$work/tarball"
tar -xzf "$packages"/*.tar.gz -C "$work/tarball" --strip-components 1
cp "$repository/data/samples/sample.xml" "$work/sample.xml"
check tarballGenerates "$work"/tarball/bin/qxgen generate "$work/sample.xml" -o "$work/generated"

if [ "$(id -u)" -ne 0 ]; then
    echo "SKIP   : Packages(packages) are not installed: only an administrator can make a Debian root"
    end_tests
    exit 0
fi
root=$scratch/root # debootstrap takes no blanks
# At the end nothing of it may be mounted when the directory is removed.
trap 'umount -ql "$root/proc" 2>/dev/null || true; rm -rf --one-file-system "$scratch"' EXIT
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$log" 2>&1 || { fail rootIsMade "$(tail -5 "$log")"; end_tests; }
mount -t proc proc "$root/proc"
in_root() { # command...
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C DEBIAN_FRONTEND=noninteractive "$@"
}
# What stays of a package that is gone: dpkg's own notes and caches do not count.
files() {
    (cd "$root" && find . -xdev \( -path ./proc -o -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache \
        -o -path ./var/log -o -path ./tmp -o -path ./root \) -prune -o -print | LC_ALL=C sort)
}
cp "$packages"/*.deb "$repository/data/samples/sample.xml" "$root/tmp/"
cp -r "$repository/examples/cmake" "$root/tmp/example"
in_root apt-get install -y --no-install-recommends cmake g++ make >"$log" 2>&1 || fail compilerIsInstalled "$(tail -5 "$log")"
# Their dependencies ahead of them, so that what is compared is theirs alone.
for each in "$packages"/*.deb; do dpkg-deb -f "$each" Depends; done | sed 's/, /\n/g' | sed 's/ .*//' |
    grep -v '^quorvex' | xargs chroot "$root" apt-get install -y --no-install-recommends >"$log" 2>&1 ||
    fail dependenciesAreInstalled "$(tail -5 "$log")"
files >"$work/before"
install_packages() {
    in_root sh -c 'apt-get install -y --no-install-recommends /tmp/*.deb' >"$log" 2>&1
}
check packagesAreInstalled install_packages
same installedFilesAreThoseOfThePackages "" "$(in_root dpkg --verify quorvex-codegen quorvex-codegen-dev)"
check qxgenGenerates in_root qxgen generate /tmp/sample.xml -o /tmp/out
check codeGenGenerates in_root env QT_QPA_PLATFORM=offscreen codeGen -G -A -F /tmp/sample.xml -O /tmp/classic
check codeGenHasWritten test -e "$root/tmp/classic/cpp\\Makefile"
build_example() {
    in_root sh -c 'cmake -S /tmp/example -B /tmp/built && cmake --build /tmp/built' >"$log" 2>&1 || { tail -20 "$log" >&2; false; }
}
check exampleIsBuilt build_example
check packagesArePurged in_root apt-get purge -y quorvex-codegen quorvex-codegen-dev
files >"$work/after"
same nothingStays "" "$(diff "$work/before" "$work/after" || true)"
end_tests
