#!/usr/bin/env bash
# Runs one journey macro against a fresh copy of the sample installation and compares its
# transcript with the expected one. Usage: run-journey.sh BRAKEVAN MACRO EXPECTED SAMPLE_INSTALL
# Header lines of the macro set the scene:
#   # journey: no-preferences    start without preferences.txt (and so without a known game)
#   # journey: no-converter      run a copy of the program from a folder without serz.exe
#   # journey: tree-default      preferences choose the tree editor as the default
#   # journey: exit N            the run is expected to end with exit code N
#   # journey: args TEXT         the command line file (with $INSTALL expanded)
# In the macro, $INSTALL, $APP and $BIN stand for the Windows paths of the installation copy, the
# program's folder and the folder of the program; the transcript is compared with them put back.
# BV_UPDATE_JOURNEYS=1 writes the expected file instead of comparing.
set -euo pipefail
brakevan="$1"; macro="$2"; expected="$3"; sample="$4"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/app"
if [ -d "$sample" ]; then
    cp -r "$sample" "$work/install"
else
    mkdir -p "$work/install"
fi
bin_dir="$(dirname "$brakevan")"
header() { grep -E "^# journey: $1" "$macro" | head -n 1 | sed -E "s/^# journey: $1 ?//" || true; }
if grep -q '^# journey: no-converter' "$macro"; then
    mkdir -p "$work/bin"
    cp "$brakevan" "$work/bin/"
    bin_dir="$work/bin"
    brakevan="$work/bin/$(basename "$brakevan")"
fi
win() { printf 'Z:%s' "$(printf '%s' "$1" | tr '/' '\\')"; }
INSTALL="$(win "$work/install")"; APP="$(win "$work/app")"; BIN="$(win "$(cd "$bin_dir" && pwd)")"
export INSTALL APP BIN
tree=FALSE
grep -q '^# journey: tree-default' "$macro" && tree=TRUE
if ! grep -q '^# journey: no-preferences' "$macro"; then
    printf '12000,9000,600,600,"","","%s",#%s#,"",""\r\n' "$INSTALL" "$tree" > "$work/app/preferences.txt"
fi
expand() { perl -pe 's/\$INSTALL/$ENV{INSTALL}/g; s/\$APP/$ENV{APP}/g; s/\$BIN/$ENV{BIN}/g'; }
expand < "$macro" > "$work/macro"
args=()
arg="$(header args)"
[ -n "$arg" ] && args+=("$(printf '%s' "$arg" | expand)")
want_exit="$(header exit)"; want_exit="${want_exit:-0}"
set +e
"$brakevan" --play "$work/macro" --transcript "$work/out" --app-folder "$work/app" "${args[@]}" \
    > "$work/stdout" 2> "$work/stderr"
code=$?
set -e
# Put the placeholders back, in the raw and in the quoted (doubled backslash) form.
perl -pe 'for my $k (qw(INSTALL APP BIN)) { my $v = $ENV{$k}; (my $q = $v) =~ s/\\/\\\\/g;
          s/\Q$q\E/\$$k/g; s/\Q$v\E/\$$k/g; }' "$work/out" > "$work/transcript"
if [ "${BV_UPDATE_JOURNEYS:-}" = "1" ]; then
    cp "$work/transcript" "$expected"
    echo "wrote $expected"
fi
status=0
if [ "$code" != "$want_exit" ]; then
    echo "exit code $code, expected $want_exit"; cat "$work/stderr"; status=1
fi
if ! diff -u "$expected" "$work/transcript"; then
    status=1
fi
exit $status
