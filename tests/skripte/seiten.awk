# Recorded pages, shorter: texts of one height and font in one line, "text <top> <size> <bold> <colour>" and then
# "| <left>+<width> <text>" for each; a job that repeats the one before it by its title alone.
function flush() {
    if (head != "") {
        job = job head rest "\n"
    }
    head = rest = ""
}
function finish() {
    flush()
    if (job != "") {
        printf "%s", job == former ? title " (the same again)\n" : job
        former = job
    }
    job = ""
}
/^job / { finish(); title = $0 }
/^text / {
    this = "text " $3 " " $5 " " $6 " " $7
    if (this != head) {
        flush()
        head = this
    }
    rest = rest " | " $2 "+" $4 substr($0, length("text " $2 $3 $4 $5 $6 $7) + 6)
    next
}
{ flush(); job = job $0 "\n" }
END { finish() }
