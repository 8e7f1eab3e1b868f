# Recorded pages, shorter: texts of one height and font in one line, "text <top> <size> <bold> <colour>" and then
# "| <left>+<width> <text>" for each; what stands on the page before as well, only counted; a job that repeats the one
# before it by its title alone.
function flush() {
    if (head != "") {
        put(head rest)
    }
    head = rest = ""
}
function put(line) {
    at[++count] = line
    if (line == former_page[place + 1]) {
        place++
        same++
        return
    }
    put_same()
    job = job line "\n"
}
function put_same() {
    if (same > 0) {
        job = job "(" same " more as on the page before)\n"
    }
    same = 0
}
function turn_page(    i) {
    flush()
    put_same()
    split("", former_page)
    for (i = 1; i <= count; i++) {
        former_page[i] = at[i]
    }
    count = place = 0
}
function finish() {
    turn_page()
    split("", former_page)
    if (job != "") {
        printf "%s", job == former ? title " (the same again)\n" : job
        former = job
    }
    job = ""
}
/^job / { finish(); title = $0; job = $0 "\n"; next }
/^page / { turn_page(); job = job $0 "\n"; next }
/^enddoc/ { flush(); put_same(); job = job $0 "\n"; next }
/^text / {
    this = "text " $3 " " $5 " " $6 " " $7
    if (this != head) {
        flush()
        head = this
    }
    rest = rest " | " $2 "+" $4 substr($0, length("text " $2 $3 $4 $5 $6 $7) + 6)
    next
}
{ flush(); put($0) }
END { finish() }
