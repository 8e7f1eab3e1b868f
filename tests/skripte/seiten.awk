# Recorded pages, shorter: texts of one height and font in one line, "text <top> <size> <bold> <colour>" and then
# "| <left>+<width> <text>" for each.
function flush() {
    if (head != "") {
        print head rest
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
{ flush(); print }
END { flush() }
