#!/usr/bin/env bash
# Rules of the house that no compiler knows. Fails with the lines that break one.
#
#     tests/house-rules.sh            this tree
#     tests/house-rules.sh FOLDER     another one: tests/house-rules-test shows it bad examples
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"

# The floors of src, from the ground up. A file includes files of its own folder and of floors below it, and
# folders that share a floor do not know each other.
floors=(
    core
    card
    screen
    tables
    'rating import'
    reports
    cardfiles
    results
    analysis
    day
    app
    'console desktop'
)

# Where the numbers of columns and cells have their names.
named_in='^src/(card/columns|screen/view_columns)\.h:'

broken=0

# complain RULE COMMAND...: prints the lines that the command finds, if any, under the rule that they break.
complain() {
    local rule=$1 found
    shift
    found=$("$@")
    [ -n "$found" ] || return 0
    printf '%s\n%s\n\n' "$rule" "$found"
    broken=1
}

# Sources below those of the folders that are there.
sources_of() {
    local folder there=()
    for folder in "$@"; do [ ! -d "$folder" ] || there+=("$folder"); done
    [ ${#there[@]} -eq 0 ] || find "${there[@]}" -name '*.h' -o -name '*.cpp' -o -name '*.c' | LC_ALL=C sort
}

mapfile -t sources < <(sources_of src)
mapfile -t all_sources < <(sources_of src tests bench fuzz samples/generator)
[ ${#sources[@]} -gt 0 ] || { echo "No sources in $PWD/src" >&2; exit 2; }

# grep for searches that may find nothing.
search() { grep "$@" || [ $? -eq 1 ]; }

# in_code PATTERN [EXCEPT]: FILE:LINE:CODE of src where the code, without comments and texts, has the pattern.
in_code() { (cd "$plain" && search -nE "$1" "${sources[@]}" /dev/null) | search -vE "${2:-^$}"; }
in_any_source() { LC_ALL=C search -nP "$1" "${all_sources[@]}" /dev/null; }

# A copy of src without comments and without what stands in texts, so that neither breaks a rule. Lines keep
# their numbers, includes their names. (\047 is the quote of a character.)
plain=$(mktemp -d)
trap 'rm -rf "$plain"' EXIT
cp -r src "$plain"
awk -v plain="$plain" '
    FNR == 1 { if (out) close(out); out = plain "/" FILENAME; printf "" > out; inComment = 0 }
    !inComment && /^[ \t]*#[ \t]*include/ { sub(/[ \t]*\/\/.*/, ""); print > out; next }
    {
        code = ""
        rest = $0
        while (rest != "") {
            if (inComment) {
                end = index(rest, "*/")
                if (!end) break
                inComment = 0
                code = code " "
                rest = substr(rest, end + 2)
                continue
            }
            if (!match(rest, /\/\/|\/\*|["\047]/)) { code = code rest; break }
            mark = substr(rest, RSTART, RLENGTH)
            code = code substr(rest, 1, RSTART - 1)
            rest = substr(rest, RSTART + RLENGTH)
            if (mark == "//") break
            if (mark == "/*") { inComment = 1; continue }
            code = code mark
            if (mark == "\047" && code ~ /[0-9]\047$/) continue # between digits
            pattern = mark == "\"" ? "^([^\"\\\\]|\\\\.)*\"" : "^([^\047\\\\]|\\\\.)*\047"
            if (!match(rest, pattern)) break
            code = code mark
            rest = substr(rest, RLENGTH + 1)
        }
        print code > out
    }' "${sources[@]}"

# Includes against the order of the floors.
upward_includes() {
    (cd "$plain" && printf '%s\n' "${floors[@]}" | awk '
        FILENAME == "-" { for (i = 1; i <= NF; ++i) floor[$i] = FNR; next }
        FNR == 1 {
            split(FILENAME, path, "/")
            own = path[2]
            if (!(own in floor) && !(own in told)) { told[own]; print FILENAME ": " own " stands on no floor" }
        }
        /^[ \t]*#[ \t]*include[ \t]*["<]/ {
            split($0, part, /["<>]/)
            split(part[2], path, "/")
            other = path[1]
            if (other == own || !(own in floor)) next
            where = FILENAME ":" FNR ": " own " (floor " floor[own] ") includes " part[2]
            if (!(other in floor)) {
                if ($0 ~ /"/) print where ", which is in no folder on a floor"
            } else if (floor[other] >= floor[own]) print where " (floor " floor[other] ")"
        }' - "${sources[@]}")
}

# Modules that include each other in a ring, where a module is x.h with x.cpp.
include_rings() {
    (cd "$plain" && awk '
        function moduleOf(file) { sub(/\.(h|cpp|c)$/, "", file); return file }
        # Follows the includes of a module; whoever is met again while still under way closes a ring.
        function follow(module, depth,    i) {
            way[depth] = module
            state[module] = "under way"
            for (i = 1; i <= includes[module]; ++i) {
                if (state[included[module, i]] == "") follow(included[module, i], depth + 1)
                else if (state[included[module, i]] == "under way") tell(included[module, i], depth)
            }
            state[module] = "done"
        }
        function tell(first, depth,    at, ring) {
            ring = first
            for (at = depth; way[at] != first; --at) ring = way[at] " -> " ring
            print first " -> " ring
        }
        FNR == 1 {
            own = moduleOf(FILENAME)
            if (!(own in includes)) { includes[own] = 0; order[++modules] = own }
        }
        /^[ \t]*#[ \t]*include[ \t]*"/ {
            split($0, part, "\"")
            other = moduleOf("src/" part[2])
            if (other != own && !((own, other) in known)) {
                known[own, other]
                included[own, ++includes[own]] = other
            }
        }
        END { for (m = 1; m <= modules; ++m) if (state[order[m]] == "") follow(order[m], 1) }' "${sources[@]}")
}

# Bare integers as columns and cells. Statements are read whole, over their lines, and told by the line where
# the integer stands. The corner of a view, (0, 0), is its heading and no column.
bare_integers() {
    (cd "$plain" && awk '
        BEGIN {
            inside = "([^(){}]|[(][^()]*[)])*"
            last = ", *[0-9]+ *[)]"
            bare = "[.](text|read)[(]" inside last                                     # view.text(row, 5)
            bare = bare "|" last "[.](text|bold|background|foreground)([^A-Za-z]|$)"   # view(row, 17).text
            bare = bare "|(raceOutcome|payoffRecord|lineCells)[(]" inside last
            bare = bare "|(raceOutcome|payoffRecord)[[][{]" inside ", *[0-9]+ *[}][]]" # raceOutcome[{race, 9}]
            bare = bare "|(^|[^A-Za-z_])(outcome|payoff)[(] *[0-9]+ *[)]"
            bare = bare "|(^|[^A-Za-z_])cells[[] *[0-9]+ *[]]|cellsOf[(]" inside "[)][[] *[0-9]+ *[]]"
            bare = bare "|[.]shade[(]" inside ", *[0-9]+ *,"
            bare = bare "|(^|[^A-Za-z_])[A-Z][A-Za-z]*(Bet|Columns?|Cells?)[{]+ *[0-9]|(^|[ (])Bet[{]+ *[0-9]"
            bare = bare "|(const|constexpr) +[A-Za-z_:0-9]+ +[A-Za-z]*(Column|Cell) *[={] *[0-9]"
        }
        FNR == 1 { statement = "" }
        {
            line = $0
            gsub(/[(]0, 0[)]/, "(corner)", line)
            statement = statement " " line
            if (match(statement, bare)) {
                found = $0
                sub(/^[ \t]+/, "", found)
                print FILENAME ":" FNR ": " found
                statement = ""
            }
            if (line ~ /[;{}][ \t]*$/) statement = ""
        }' "${sources[@]}") | search -vE "$named_in"
}

# Attempts of more than one statement, over however many lines. Constants that a statement prepares for itself
# do not count, a statement with its branches or its loop counts once.
double_attempts() {
    (cd "$plain" && awk '
        # Statements of the block that begins after `at` in `code`; ends at its closing brace.
        function statementsOf(at,    depth, round, count, first, c, word, rest) {
            depth = round = count = 0
            first = 1 # of the next character: whether a statement begins there
            for (; at <= length(code); ++at) {
                c = substr(code, at, 1)
                if (c ~ /[ \t\n]/) continue
                if (depth == 0 && round == 0 && c == "}") return count
                if (first) {
                    first = 0
                    rest = substr(code, at, 12)
                    word = rest
                    sub(/[^a-z].*/, "", word)
                    if (word !~ /^(const|constexpr|else)$/) ++count
                }
                if (c == "(" || c == "[") ++round
                if (c == ")" || c == "]") --round
                if (c == "{") ++depth
                if (c == "}") --depth
                if (depth == 0 && round == 0 && (c == ";" || (c == "}" && endsStatement(at)))) first = 1
            }
            return count
        }
        # A brace ends a statement unless that goes on after it, as a value in braces does.
        function endsStatement(at) { return substr(code, at + 1, 40) ~ /^[ \t\n]*([A-Za-z_*}]|$)/ }
        function look(file,    at, start, body) {
            at = 1
            while (match(substr(code, at), /(^|[^A-Za-z_])attempt[(][ \t\n]*[[][^]]*[]][^{};]*[{]/)) {
                start = at + RSTART - 1
                body = start + RLENGTH
                if (statementsOf(body) > 1) print file ":" lineAt(start + 1) ": " firstLine(start)
                at = body
            }
        }
        function lineAt(place,    before) { before = substr(code, 1, place); return gsub(/\n/, "", before) + 1 }
        function firstLine(place,    shown) {
            shown = substr(code, place, 120)
            sub(/^[ \t\n]+/, "", shown)
            sub(/\n.*/, "", shown)
            return shown
        }
        FNR == 1 { if (file) look(file); file = FILENAME; code = "" }
        { code = code $0 "\n" }
        END { look(file) }' "${sources[@]}")
}

complain 'An include that does not run down to a lower floor:' upward_includes
complain 'Files that include each other in a ring:' include_rings
complain 'A bare integer for a column or a cell (names are in card/columns.h and screen/view_columns.h):' bare_integers
complain 'Two statements in one attempt:' double_attempts
# One kind of failure, caught in one place; a file too large for the memory is told as any that can't be read.
complain 'A catch outside src/core/failure.h:' in_code '\bcatch *\(' \
    '^src/core/failure\.h:|^src/core/files\.cpp:[0-9]+:.*catch \(const std::bad_alloc&\)'
complain 'Qt outside src/desktop:' in_code '#include *[<"](Q[A-Z]|Qt)' '^src/desktop/'
# It needs a library that the logic and the console do without.
complain 'The import known outside the window:' in_code '#include *"import/' '^src/(import|desktop)/'
complain 'The archive library outside src/import:' in_code '#include *<archive' '^src/import/'
complain 'A using namespace in a header:' in_code '\busing namespace\b' '^[^:]*\.cpp:'
complain 'Something that depends on the locale:' \
    in_code '\b(isalpha|isdigit|isspace|toupper|tolower|setlocale)\b|#include <(locale|clocale|locale\.h)>'
complain 'A source that is not plain ASCII:' in_any_source '[^\x00-\x7F]'
complain 'A tab in a source:' in_any_source '\t'

exit "$broken"
