#!/usr/bin/env bash
# Plays a script in a fresh folder and compares its answers, and the files it left, with what stands beside it:
# NAME.qks        the script; @ORDNER@ stands for the folder
# NAME.vorher     a shell script that prepares the folder (optional)
# NAME.txt        the expected answers
# NAME.dateien/   files that the folder must hold afterwards, byte for byte (optional)
# With NEU=1 in the environment the expectations are written instead of compared.
set -u
runner=$1
script=$(realpath "$2")
base=${script%.qks}
folder=$(mktemp -d)
trap 'chmod -R u+w "$folder" 2>/dev/null; rm -rf "$folder"' EXIT
[ -e "$base.vorher" ] && (cd "$folder" && bash "$base.vorher")

answers=$(sed "s|@ORDNER@|$folder|g" "$script" | "$runner" 2>"$folder.err" | sed "s|$folder|@ORDNER@|g"; exit "${PIPESTATUS[1]}")
status=$?
errors=$(grep -v XDG_RUNTIME_DIR "$folder.err")
rm -f "$folder.err"

if [ "${NEU:-0}" = 1 ]; then
    printf '%s\n' "$answers" >"$base.txt"
    exit 0
fi
failed=0
printf '%s\n' "$answers" | diff -u "$base.txt" - || failed=1
if [ -n "$errors" ]; then
    echo "Unexpected error output:"
    echo "$errors"
    failed=1
fi
if grep -q '^error:' "$base.txt"; then want=1; else want=0; fi
if [ "$status" -ne "$want" ]; then
    echo "Exit status $status instead of $want"
    failed=1
fi
if [ -d "$base.dateien" ]; then
    for file in "$base.dateien"/*; do
        cmp "$file" "$folder/$(basename "$file")" || failed=1
    done
fi
exit $failed
