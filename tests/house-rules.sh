#!/usr/bin/env bash
# Rules of the house that no compiler knows.
set -u
cd "$(dirname "$0")/.."
status=0

# complain RULE: prints the lines on standard input, if any, under the rule that they break.
complain() {
    local found
    found=$(cat)
    [ -z "$found" ] && return
    printf '%s\n%s\n\n' "$1" "$found"
    status=1
}

logic='src/core src/app src/source src/rating src/store src/results src/reports src/analysis src/tools src/console'

grep -rnE '\bcatch \(' src --include='*.h' --include='*.cpp' | grep -v '^src/core/failure.h' |
    complain 'A catch outside src/core/failure.h:'
grep -rnE '#include <Q' $logic | complain 'Qt inside the logic:'
grep -rnP '[^\x00-\x7F]' src tests bench fuzz samples/generator --include='*.h' --include='*.cpp' |
    complain 'A source that is not plain ASCII:'
grep -rnE 'using namespace' src --include='*.h' | complain 'A using namespace in a header:'
grep -rnE '\b(isalpha|isdigit|isspace|toupper|tolower|setlocale)\b|#include <locale>' src |
    complain 'Something that depends on the locale:'
grep -rnE '#include "(console|desktop)/' src | grep -vE '^src/(console|desktop)/' |
    complain 'An include that runs upwards:'
grep -rnP '\t' src tests samples/generator bench --include='*.h' --include='*.cpp' | complain 'A tab in a source:'
# An attempt holds one statement: two on one line, or a block of several lines of statements, skip each other.
grep -rnP 'attempt\(\[[^]]*\]( \(\))? ?\{[^{}]*;[^{}]*;[^{}]*\}\)' src | complain 'Two statements in one attempt:'

exit $status
