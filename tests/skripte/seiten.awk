# Recorded pages, shorter. Texts of one font beside each other stand in one line, "text <top> <size> <bold> <colour>"
# and "| <left>+<width> <text>" for each; those below each other in "block <left> <size> <bold> <colour>" and
# "| <top>+<width> <text>". Of lines that stood on the page before as well there is only the number.
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
    if (kind == "block") {
        line("block " left " " font block)
    } else if (font != "") {
        line("text " top " " font row)
    }
    font = kind = row = block = ""
}
/^text / {
    this = $5 " " $6 " " $7
    beside = this == font && $3 == top && kind != "block"
    below = this == font && $2 == left && kind != "row"
    if (beside || below) {
        kind = beside ? "row" : "block"
    } else {
        flush()
    }
    font = this
    left = $2
    top = $3
    words = substr($0, length("text " $2 $3 $4 $5 $6 $7) + 6)
    row = row " | " left "+" $4 words
    block = block " | " top "+" $4 words
    next
}
{ flush(); line($0) }
END { flush() }
