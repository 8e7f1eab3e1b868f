# An invoice file: ten fields a line behind the number of the first one, equal lines as one; positions as they stand.
function flush() {
    if (fields != "" && fields != former) {
        print number ": " fields
    }
    former = fields
    fields = ""
    held = 0
}
/^#qk8LIST#/ {
    flush()
    print
    next
}
{
    number = held == 0 ? NR - 1 : number
    fields = held == 0 ? $0 : fields "|" $0
    if (++held == 10) {
        flush()
    }
}
END {
    flush()
    print NR " lines"
}
