#!/usr/bin/env bash
# Plays a script in a fresh folder and compares its answers with those that stand in it.
#   click form1.m_neu     a command for the script runner; @ORDNER@ stands for the folder
#   #$ qk8 a.qk8          a command for the shell, in the folder; lesen and qk8 (below) print files
#   #? form1 A B L*       the values of these controls of the form and the items of a list, in one line of answer
#   #/ Seite|betrag       those lines of the recorded pages that match
#   #+ 2|Stuhl|12,5       adds a row of this quantity, text and price
#   #< form1 A=text | B=x sets these controls of the form
#   #! form1.m_neu yes 2 @a.qk8   clicks (a form: closes) while answers wait: of boxes, a number of copies, at the end a
#                         file of the folder
#   #> Form.Bild 9 9 50 -5   drags with the mouse from the first place over the others
#   #= 0,00               what the command above it answers, the closing "ok" left out
# With NEU=1 in the environment the answers are written into the script instead of compared.
set -u
runner=$1
script=$(realpath "$2")
here=$(dirname "$(realpath "$0")")
work=$(mktemp -d)
folder=$work/ordner
mkdir "$folder"
printf '1\r\n' >"$folder/prgaufruf.lld" # a first start would ask whether to look for a newer version
trap 'chmod -R u+w "$work" 2>/dev/null; rm -rf "$work"' EXIT

# A text file of the program, its line ends made visible where they are not CR LF.
lesen() { iconv -f cp1252 -t utf-8 "$1" | awk '{ print sub(/\r$/, "") ? $0 : $0 "<LF>" }'; }
# An invoice file with ten fields a line, a run of unset fields as one.
qk8() { lesen "$1" | awk -f "$here/qk8.awk"; }
export -f lesen qk8
export here

# The answer of the runner to one command.
answer() {
    local line
    while IFS= read -r -u "${RUNNER[0]}" line; do
        [ "$line" = ok ] && return
        printf '%s\n' "$line"
        if [[ $line == error:* ]]; then
            return
        fi
    done
    echo "<the runner has ended>"
}

send() {
    printf '%s\n' "${1//@ORDNER@/$folder}" >&"${RUNNER[1]}"
    answer
}

# The values of controls, parted by " | ".
values() {
    local form=$1 control row=
    shift
    for control; do
        case $control in
        *'*') send "items $form.${control%'*'}" >"$work/value" ;;
        *) send "get $form.$control" >"$work/value" ;;
        esac
        row+=" | $(paste -sd'|' "$work/value")"
    done
    printf '%s\n' "${row:3}"
}

# What was printed, one printed line a line, as far as it matches.
pages() {
    send pages >"$work/pages"
    awk -f "$here/seiten.awk" "$work/pages" | grep -E "$1"
}

# Adds a row: quantity, text and price, parted by "|".
add_row() {
    local menge leistung preis
    IFS='|' read -r menge leistung preis <<<"$1"
    send "set form1.Text_Menge $menge"
    send "set form1.Text_leistung $leistung"
    send "set form1.Text_preis $preis"
    send "click form1.Cmd_Add_To_list"
}

# Sets controls of a form: names and values, parted by " | ".
set_values() {
    local form=${1%% *} rest="${1#* } | " pair
    while [ -n "$rest" ]; do
        pair=${rest%%' | '*}
        rest=${rest#*' | '}
        send "set $form.${pair%%=*} ${pair#*=}"
    done
}

# Clicks a control or closes a form while the answers behind it wait.
click_with() {
    local -a words
    local word
    case $1 in *' @'*) send "file $folder/${1#* @}" ;; esac
    read -ra words <<<"${1%% @*}"
    for word in "${words[@]:1}"; do
        case $word in
        [0-9]*) send "printer $word" ;;
        *) send "answer $word" ;;
        esac
    done
    case ${words[0]} in
    *.*) send "click ${words[0]}" ;;
    *) send "close ${words[0]}" ;;
    esac
}

# Drags from the first place over the others. The button goes up where it began: the control has moved along.
drag() {
    local control=$1 x=$2 y=$3
    shift 3
    send "mouse $control move 0 $x $y"
    send "mouse $control down 1 $x $y"
    for (( ; $# >= 2; )); do
        send "mouse $control move 1 $1 $2"
        shift 2
    done
    send "mouse $control up 1 $x $y"
}

play() {
    local line
    local -a names
    while IFS= read -r line; do
        case $line in
        '#='*) continue ;;
        '#$'*) (cd "$folder" && bash -c "${line#'#$'}" 2>&1) >"$work/answer" ;;
        '#?'*)
            read -ra names <<<"${line#'#?'}"
            values "${names[@]}" >"$work/answer"
            ;;
        pages) pages . >"$work/answer" ;;
        '#/ '*) pages "${line#'#/ '}" >"$work/answer" ;;
        '#+ '*) add_row "${line#'#+ '}" >"$work/answer" ;;
        '#< '*) set_values "${line#'#< '}" >"$work/answer" ;;
        '#! '*) click_with "${line#'#! '}" >"$work/answer" ;;
        '#> '*)
            read -ra names <<<"${line#'#> '}"
            drag "${names[@]}" >"$work/answer"
            ;;
        '' | '#'*) : >"$work/answer" ;;
        *) send "$line" >"$work/answer" ;;
        esac
        printf '%s\n' "$line"
        sed "s|$folder|@ORDNER@|g; s|^|#= |; s|^#= \$|#=|" "$work/answer"
    done <"$script"
}

coproc RUNNER { exec "$runner" 2>"$work/errors"; }
pid=$RUNNER_PID
play >"$work/played"
exec {RUNNER[1]}>&-
wait "$pid"
status=$?

if [ "${NEU:-0}" = 1 ]; then
    cp "$work/played" "$script"
    exit 0
fi
failed=0
diff -u "$script" "$work/played" || failed=1
if grep -v XDG_RUNTIME_DIR "$work/errors"; then
    echo "is unexpected error output"
    failed=1
fi
if grep -q '^#= error:' "$script"; then want=1; else want=0; fi
if [ "$status" -ne "$want" ]; then
    echo "Exit status $status instead of $want"
    failed=1
fi
exit $failed
