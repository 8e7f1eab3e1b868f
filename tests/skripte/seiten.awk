# Recorded pages, shorter: texts of one height and font in one line, "text <top> <size> <bold> <colour>" and then
# "| <left>+<width> <text>" for each; of lines that stood on the page before as well only the number.
function line(text) {
    page += text ~ /^page /
    if (page > 1 && seen[text] == page - 1) {
        same++
    } else {
        if (same > 0) {
            print "as before: " same
        }
        same = 0
        print text
    }
    seen[text] = page
}
function flush() {
    if (head != "") {
        line(head rest)
    }
    head = rest = ""
}
/^text / {
    this = "text " $3 " " $5 " " $6 " " $7
    if (this != head) {
        flush()
        head = this
    }
    rest = rest " | " $2 "+" $4 substr($0, length("text " $2 $3 $4 $5 $6 $7) + 6)
    next
}
{ flush(); line($0) }
END { flush() }
