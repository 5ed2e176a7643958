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
own=$data/tarvold-editor # holds the documents, this script, and two lists:
list=$own/files      # what was installed; "files.new" is that of an installation that has not ended
folders=$own/folders # the folders that were made for that

fail() {
    echo "$1" >&2
    exit 1
}

# make_folder FOLDER: makes a folder with those above it, and notes those that were not there.
make_folder() {
    folder=$1
    missing=
    while [ ! -d "$folder" ]; do
        missing="$folder
$missing"
        folder=$(dirname "$folder")
    done
    mkdir -p "$1"
    printf '%s' "$missing" >>"$folders"
}

# put FILE TARGET: notes that a file is ours, and copies it.
put() {
    make_folder "$(dirname "$2")"
    printf '%s\n' "$2" >>"$list.new"
    # A new file, as a program that runs cannot be written to.
    cp "$1" "$2.new"
    mv -f "$2.new" "$2"
}

# in_entry PATH: as it must be written between quotes in a desktop entry, where a backslash before a
# character is written as two, and a percent sign begins a field.
in_entry() {
    printf '%s\n' "$1" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g'
}

# The desktop entries name the whole path: not every desktop looks for programs in ~/.local/bin. The
# folder to start in, which the user may have added, stays.
put_entry() {
    entry=$own/entry
    start_in=
    [ ! -f "$2" ] || start_in=$(sed -n '/^Path=/p' "$2")
    replacement=$(in_entry "$programs" | sed 's/[\\&|]/\\&/g')
    sed "s|^Exec=\([^ ]*\)|Exec=\"$replacement/\1\"|" "$1" >"$entry"
    [ -z "$start_in" ] || printf '%s\n' "$start_in" >>"$entry"
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
    make_folder "$own"
    # What an installation has left that did not end is in the way of none, and is removed with the rest.
    [ ! -f "$list.new" ] || cat "$list.new" >>"$list"
    : >"$list.new"
    for program in tarvold-editor tarvold-records; do
        put $program "$programs/$program"
    done
    for entry in share/applications/*.desktop; do
        put_entry "$entry" "$data/applications/${entry##*/}"
    done
    find share docs examples -type f ! -name '*.desktop' | while IFS= read -r file; do
        case $file in
        share/*) put "$file" "$data/${file#share/}" ;;
        *) put "$file" "$own/$file" ;;
        esac
    done
    for file in LICENSE.txt NOTICES.txt install.sh; do
        put $file "$own/$file"
    done
    # What an older version had, and this one has not, goes.
    [ ! -f "$list" ] || grep -vxFf "$list.new" "$list" | while IFS= read -r file; do
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
    [ -f "$list" ] || [ -f "$list.new" ] || fail "Nothing is installed in $own."
    for each in "$list" "$list.new"; do
        [ ! -f "$each" ] || while IFS= read -r file; do
            rm -f "$file" "$file.new"
        done <"$each"
    done
    made=$([ ! -f "$folders" ] || LC_ALL=C sort -ru "$folders")
    rm -f "$list" "$list.new" "$own/entry" "$folders"
    # The inner folders first; a folder with files of others stays, and so does one that was there before.
    printf '%s\n' "$made" | while IFS= read -r folder; do
        rmdir "$folder" 2>/dev/null || true
    done
    tell_desktop
    echo "Uninstalled. The data files that you have written are still there."
}

case ${1:-} in
"") install_files ;;
--uninstall) uninstall_files ;;
*) fail "Usage: ./install.sh [--uninstall]" ;;
esac
