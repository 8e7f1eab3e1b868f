#!/usr/bin/env bash
# Rules of the code base that no compiler knows.
set -u
cd "$(dirname "$0")/.."
git ls-files --error-unmatch CMakeLists.txt >/dev/null || {
    echo "regeln: git does not list the files here"
    exit 1
}
failed=0
complain() {
    echo "regeln: $1"
    printf '%s\n' "$2"
    failed=1
}

hits=$(grep -rnE '#include <Q|#include "ui_' --include='*.cpp' --include='*.hpp' . |
    grep -vE '^\./(platform/qt/|app/main|tests/qt/|benchmarks/|build|dist)')
[ -n "$hits" ] && complain "Qt belongs to platform/qt" "$hits"

hits=$(grep -rn 'find_package(Qt6' --include=CMakeLists.txt . | grep -vE '^\./(platform/qt/|build)')
[ -n "$hits" ] && complain "Qt is found in platform/qt alone" "$hits"

hits=$(grep -rnE '#include "app/' --include='*.cpp' --include='*.hpp' . | grep -vE '^\./(app/|tests/|benchmarks/|build)')
[ -n "$hits" ] && complain "nothing includes app/" "$hits"

hits=$(git ls-files -- '*.hpp' | xargs -r grep -L '#pragma once')
[ -n "$hits" ] && complain "headers without an include guard" "$hits"

# The linker takes one of them for both, and the program breaks where the other one is meant.
hits=$(git ls-files -- '*.hpp' | grep -vE '^(tests|benchmarks)/' | xargs -r awk '
    /^namespace .*{$/ { space[++depth] = $2 }
    /^} *\/\/ namespace/ { --depth }
    /^(struct|class|enum class) .*{/ { name = space[depth] "::" ($1 == "enum" ? $3 : $2)
        if (name in seen) print name ": " seen[name] ", " FILENAME
        seen[name] = FILENAME }
    FNR == 1 { depth = 0 }')
[ -n "$hits" ] && complain "two types of one name" "$hits"

if ! command -v clang-format >/dev/null; then
    complain "clang-format is missing" "apt-get install clang-format"
else
    hits=$(git ls-files -- '*.cpp' '*.hpp' | xargs -r clang-format --dry-run 2>&1 | grep -c 'warning')
    [ "$hits" -gt 0 ] && complain "clang-format finds $hits places" "clang-format -i \$(git ls-files -- '*.cpp' '*.hpp')"
fi

[ "$failed" -eq 0 ] && echo "regeln: in order"
exit $failed
