#!/usr/bin/env bash
# Builds the Debian package, looks at it with the tools of those who know, installs it into an empty root and starts
# the program from there.
# Usage: paket_test.sh BUILD-FOLDER
set -u
build=$(realpath "$1")
work=$(realpath "$(mktemp -d)")
pid=
trap '[ -z "$pid" ] || kill "$pid" 2>/dev/null; chmod -R u+w "$work"; rm -rf "$work"' EXIT
failed=0
complain() {
    printf 'paket: %s\n' "$@"
    failed=1
}

for tool in dpkg-deb dpkg-shlibdeps:dpkg-dev file desktop-file-validate:desktop-file-utils \
    appstreamcli:appstream lintian man:man-db update-mime-database:shared-mime-info; do
    command -v "${tool%:*}" >/dev/null || complain "${tool%:*} is missing: apt-get install ${tool#*:}"
done
[ "$failed" -eq 0 ] || exit 1

# quiet WHAT COMMAND...: the command must end well and say nothing
quiet() {
    local what=$1 said
    shift
    said=$("$@" 2>&1) && [ -z "$said" ] || complain "$what" "$said"
}

# wait_for SECONDS COMMAND...: until the command ends well
wait_for() {
    local until=$((SECONDS + $1))
    shift
    while ! "$@"; do
        [ "$SECONDS" -lt "$until" ] || return 1
        sleep 0.1
    done
}

cpack --config "$build/CPackConfig.cmake" -B "$work/paket" >"$work/cpack.log" 2>&1 || {
    complain "the package cannot be built" "$(cat "$work/cpack.log")"
    exit 1
}
package=$(echo "$work"/paket/*.deb)
quiet "lintian finds faults" lintian --allow-root --tag-display-limit 0 --fail-on error,warning "$package"

root=$work/root
dpkg-deb -x "$package" "$root"
quiet "the entry in the menu is wrong" desktop-file-validate "$root"/usr/share/applications/*.desktop
appstreamcli validate --no-net --explain "$root"/usr/share/metainfo/*.xml >"$work/appstream.log" 2>&1 ||
    complain "the entry in the catalogue is wrong" "$(cat "$work/appstream.log")"
for page in "$root"/usr/share/man/man1/*.gz "$root"/usr/share/man/de/man1/*.gz; do
    quiet "the manual page $page is wrong" env LC_ALL=C.UTF-8 MANWIDTH=80 bash -c \
        'man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null' - "$page"
done
for line in 'Exec=quittika %f' Icon=quittika 'MimeType=application/x-quittika-rechnung;'; do
    grep -qxF "$line" "$root"/usr/share/applications/quittika.desktop || complain "the entry in the menu lacks $line"
done
for icon in apps/quittika mimetypes/application-x-quittika-rechnung; do
    for size in 16 22 24 32 48 64 128 256; do
        file -L "$root/usr/share/icons/hicolor/${size}x$size/$icon.png" | grep -q "PNG image data, $size x $size," ||
            complain "no icon $icon of $size pixels"
    done
    [ -s "$root/usr/share/icons/hicolor/scalable/$icon.svg" ] || complain "no drawing of the icon $icon"
done
mkdir -p "$work/mime" && cp -r "$root/usr/share/mime/packages" "$work/mime/"
quiet "the kind of file is wrong" env XDG_DATA_DIRS="$work" update-mime-database "$work/mime"
grep -q ':application/x-quittika-rechnung:\*\.qk8' "$work/mime/globs2" || complain "no *.qk8 among the kinds of files"

program=$root/usr/bin/quittika
version=$(dpkg-deb -f "$package" Version)
[ "$(env -u DISPLAY "$program" --version)" = "Quittika 2008, Version $version" ] || complain "not version $version"
"$program" --quatsch 2>/dev/null
[ $? -eq 2 ] || complain "an unknown option must end with 2"

# The first start fills the user's folder; nothing of the package is touched.
export HOME=$work XDG_DATA_HOME="$work/daten" QT_QPA_PLATFORM=offscreen
unset DISPLAY WAYLAND_DISPLAY
data=$XDG_DATA_HOME/quittika2008
invoice="$work/Müller & Söhne 1.qk8"
begin() {
    (cd "$work" && exec "$program" "$@") >>"$work/program.log" 2>&1 &
    pid=$!
}
finish() {
    kill -0 "$pid" 2>/dev/null || complain "the program has ended by itself" "$(cat "$work/program.log")"
    kill "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
    pid=
}
# The shipped files, less those that are not in the folder as they were shipped.
filled() { [ -z "$(cd "$root/usr/share/quittika" && find . -type f ! -exec cmp -s {} "$data/{}" \; -print)" ]; }
remembered() { iconv -f cp1252 -t utf-8 "$data/prog_n.cfg" 2>/dev/null | tr -d '\r' | grep -qxF "$invoice"; }

before=$(cd "$root" && find . | sort)
begin
wait_for 20 filled || complain "the user's folder is not filled" "$(ls -R "$data" 2>&1)" "$(cat "$work/program.log")"
finish
mv "$data/Beispielrechnung.qk8" "$invoice"
# At the first start the program has a question, on 1 January a greeting, that would wait for an answer here.
echo 1 >"$data/prgaufruf.lld"
begin "${invoice##*/}"
if [ "$(date +%m%d)" = 0101 ]; then
    echo "paket: on 1 January nobody is here to answer the greeting, the invoice is not opened"
else
    wait_for 20 remembered || complain "the invoice was not opened" "$(cat "$work/program.log")"
fi
finish
[ "$(cd "$root" && find . | sort)" = "$before" ] || complain "the program writes beside itself"

[ "$failed" -eq 0 ] && echo "paket: in order"
exit $failed
