#!/usr/bin/env bash
# Checks form: formatting, static analysis, shell scripts and the small rules of this repository.
# usage: ./zv lint [--fast]     --fast leaves out clang-tidy
set -euo pipefail
source scripts/common.sh
need_build_tools clang-format clang-tidy shellcheck libgtest-dev libgmock-dev libclang-rt-14-dev

failed=0

# check NAME COMMAND...: runs one check and prints its verdict; what it prints itself follows a failure.
check() {
    local name=$1 output
    shift
    if output=$("$@" 2>&1); then
        printf '[OK]   %s\n' "$name"
    else
        printf '[FAIL] %s\n%s\n' "$name" "$(head -n 60 <<<"$output")"
        failed=1
    fi
}

sources() { git ls-files -co --exclude-standard '*.h' '*.mm' '*.cpp' '*.m' '*.c'; }

formatted() { sources | xargs clang-format --dry-run --Werror; }

shell_scripts() {
    { git ls-files -co --exclude-standard '*.sh'; printf '%s\n' zv .ci/run; } | xargs shellcheck --external-sources
    scripts_explain_themselves
}

# Every command of ./zv begins with a comment that says what it does.
scripts_explain_themselves() {
    local script
    for script in scripts/*.sh; do
        [[ $(sed -n 2p "$script") == '#'* ]] || { printf '%s: no word about what it does\n' "$script"; return 1; }
    done
}

tidy() {
    [[ -f build/host/compile_commands.json ]] || cmake --preset host >/dev/null
    python3 scripts/tidy.py build/host
}

python_compiles() {
    git ls-files -co --exclude-standard '*.py' | xargs -r python3 -c '
import ast, sys
for name in sys.argv[1:]:
    ast.parse(open(name, encoding="utf-8").read(), name)'
}

text_files() { git ls-files -co --exclude-standard | grep -vE '\.(png|plist\.bin|db|sqlitedb)$|^fuzz/corpus/|package-lock\.json|^tests/fixtures/'; }

# No tabs in sources, no blanks at line ends, a newline at the end of each file.
tidy_text() {
    local bad
    bad=$(text_files | xargs grep -lIE '[[:blank:]]+$' || true)
    [[ -z $bad ]] || { printf 'blanks at line ends:\n%s\n' "$bad"; return 1; }
    bad=$(sources | xargs grep -lP '\t' || true)
    [[ -z $bad ]] || { printf 'tabs:\n%s\n' "$bad"; return 1; }
    text_files | while read -r file; do
        [[ ! -s $file || -z $(tail -c 1 "$file") ]] || { printf 'no newline at the end: %s\n' "$file"; return 1; }
    done
}

# The bundle is told from its world by its includes: no standard library, nothing of the simulator or of host::
# outside the one header that names the paths.
bundle_is_plain() {
    local bad
    bad=$(grep -nE '#(include|import) <(string|vector|map|memory|algorithm|array|functional|optional|utility|iostream|chrono|thread|span)>|std::|simulator/' \
        settings/* rootpage/* databases/* listeditor/* pickers/* || true)
    [[ -z $bad ]] || { printf 'the bundle does not use:\n%s\n' "$bad"; return 1; }
    bad=$(grep -nE '#(include|import) [<"]host/|host::' settings/* rootpage/* databases/* listeditor/* pickers/* | grep -v '^settings/Paths\.' || true)
    [[ -z $bad ]] || { printf 'only settings/Paths knows the host:\n%s\n' "$bad"; return 1; }
}

# Package downloads go through the ordinary clients; their hosts are nobody's business here.
no_registry_hosts() {
    local bad
    bad=$(git grep -nIE '//(registry|deb|mirror|pypi|ftp)[.][a-z]' -- . || true)
    [[ -z $bad ]] || { printf '%s\n' "$bad"; return 1; }
}

check 'clang-format' formatted
check 'shellcheck' shell_scripts
check 'python' python_compiles
check 'blanks, tabs and line ends' tidy_text
check 'the bundle includes frameworks and C only' bundle_is_plain
check 'no registry host names' no_registry_hosts
[[ ${1:-} == --fast ]] || check 'clang-tidy' tidy
exit "$failed"
