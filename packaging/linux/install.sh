#!/bin/sh
# Installs the programs, with entries in the desktop's menu, for the user who runs this, or removes them.
#
# Usage: ./install.sh              install, or replace an older version
#        ./install.sh --uninstall  remove everything that was installed
#
# Needs no root permissions. Puts the programs into ~/.local/bin and the rest into ~/.local/share (or
# $XDG_DATA_HOME). Data files that you write are never touched.
set -eu

programs=$HOME/.local/bin
data=${XDG_DATA_HOME:-$HOME/.local/share}
own=$data/tarvold-editor # holds the list of what was installed, the documents, and this script
list=$own/files

fail() {
    echo "$1" >&2
    exit 1
}

# put FILE TARGET: copies a file, and notes that it is ours.
put() {
    mkdir -p "$(dirname "$2")"
    # A new file, as a program that runs cannot be written to.
    cp "$1" "$2.new"
    mv -f "$2.new" "$2"
    echo "$2" >>"$list.new"
}

# The desktop entries name the whole path: not every desktop looks for programs in ~/.local/bin.
put_entry() {
    entry=$own/entry
    mkdir -p "$own"
    sed "s|^Exec=\([^ ]*\)|Exec=\"$programs/\1\"|" "$1" >"$entry"
    put "$entry" "$2"
    rm "$entry"
}

# tell_desktop: has the desktop read its menus and file types again, where it needs to be told.
tell_desktop() {
    if command -v update-mime-database >/dev/null && [ -d "$data/mime" ]; then
        mkdir -p "$data/mime/packages" # without it nothing is taken out either
        update-mime-database "$data/mime" || true
    fi
    if command -v update-desktop-database >/dev/null && [ -d "$data/applications" ]; then
        update-desktop-database "$data/applications" || true
    fi
}

install_files() {
    cd "$(dirname "$0")"
    [ -x tarvold-editor ] || fail "Run install.sh from the folder that the archive was unpacked to."
    mkdir -p "$own"
    : >"$list.new"
    for program in tarvold-editor tarvold-records; do
        put $program "$programs/$program"
    done
    for entry in share/applications/*.desktop; do
        put_entry "$entry" "$data/applications/${entry##*/}"
    done
    find share docs examples -type f ! -name '*.desktop' | while read -r file; do
        case $file in
        share/*) put "$file" "$data/${file#share/}" ;;
        *) put "$file" "$own/$file" ;;
        esac
    done
    for file in LICENSE.txt NOTICES.txt install.sh; do
        put $file "$own/$file"
    done
    # What an older version had, and this one has not, goes.
    [ ! -f "$list" ] || grep -vxFf "$list.new" "$list" | while read -r file; do
        rm -f "$file"
    done
    mv "$list.new" "$list"
    tell_desktop
    echo "Installed. The desktop's menu has \"Tarvold Data Editor\" and \"Tarvold Records\"."
    case :$PATH: in
    *":$programs:"*) echo "In a terminal: tarvold-editor" ;;
    *) echo "In a terminal: $programs/tarvold-editor" ;;
    esac
    echo "To uninstall: $own/install.sh --uninstall"
}

uninstall_files() {
    [ -f "$list" ] || fail "Nothing is installed in $own."
    while read -r file; do
        rm -f "$file"
    done <"$list"
    # Folders that are empty now, the inner ones first; a folder with files of others stays.
    sed 's|/[^/]*$||' "$list" | sort -ru >"$list.folders"
    rm "$list"
    while read -r folder; do
        [ "$folder" = "$own" ] || rmdir -p "$folder" 2>/dev/null || true
    done <"$list.folders"
    rm "$list.folders"
    rmdir -p "$own" 2>/dev/null || true
    tell_desktop
    echo "Uninstalled. The data files that you have written are still there."
}

case ${1:-} in
"") install_files ;;
--uninstall) uninstall_files ;;
*) fail "Usage: ./install.sh [--uninstall]" ;;
esac
