#!/usr/bin/env bash
# Checks a built sample installation against its sources: each binary converted back to XML must
# equal its source byte for byte, and each plain file must be an exact copy.
#     tools/check-sample-install.sh SERZ SOURCE_DIR BUILT_DIR
set -uo pipefail
if [ $# -ne 3 ]; then
    echo "usage: $0 SERZ SOURCE_DIR BUILT_DIR" >&2
    exit 2
fi
serz="$1" source="$2" built="$3"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

checked=0 failed=0
fail() { echo "FAIL $1: $2"; failed=$((failed + 1)); }

while IFS= read -r -d '' file; do
    rel="${file#"$source"/}"
    case "$rel" in
    README.md | .gitattributes) continue ;;
    *.bin.xml | *.TgPcDx.xml | *.GeoPcDx.xml)
        binary="$built/${rel%.xml}"
        checked=$((checked + 1))
        if [ ! -f "$binary" ]; then
            fail "$rel" "not built"
        elif ! "$serz" "$binary" "xml:$work/back.xml" >"$work/log" 2>&1; then
            fail "$rel" "converting back failed: $(head -n 1 "$work/log")"
        elif ! cmp -s "$work/back.xml" "$file"; then
            where="$(cmp "$work/back.xml" "$file" | sed 's/.*: //')"
            fail "$rel" "differs from its source at $where"
        fi
        ;;
    *)
        checked=$((checked + 1))
        cmp -s "$file" "$built/$rel" || fail "$rel" "copy missing or different"
        ;;
    esac
done < <(find "$source" -type f -print0 | sort -z)

echo "$checked files checked, $failed failed"
[ "$checked" -gt 0 ] && [ "$failed" -eq 0 ]
