#!/usr/bin/env bash
# No library but platform/qt may need the toolkit: looks at what the libraries of a build tree leave to the linker.
# Usage: ohne_toolkit.sh <build tree> <library of platform/qt>
set -uo pipefail
toolkit_symbols() {
    nm -uC "$1" 2>/dev/null | grep -E '^ +U (vtable for |typeinfo for )?Q[A-Z][A-Za-z]+(::|\(|$)' |
        grep -v ' QPDF' # a library that is no toolkit
}

toolkit_symbols "$2" >/dev/null || {
    echo "$2 needs no toolkit: this test has lost its eyes"
    exit 1
}
failed=0
libraries=$(find "$1" -name 'lib*.a' ! -path "$2")
[ "$(wc -l <<<"$libraries")" -ge 8 ] || { echo "not all libraries are there:"; echo "$libraries"; failed=1; }
for library in $libraries; do
    if found=$(toolkit_symbols "$library" | sort -u); then
        echo "$library needs the toolkit:"
        echo "$found"
        failed=1
    fi
done
exit $failed
