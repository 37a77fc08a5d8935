#!/bin/sh
# The program's command line: marrowfield-cli makes a scenario, the program
# opens it and writes a screenshot; bad options and missing files are refused.
# Arguments: CLI APP OUTDIR
set -eu
CLI="$1"
APP="$2"
OUT="$3"
mkdir -p "$OUT"
rm -f "$OUT/command_line.png" "$OUT/command_line.mf1"

fail() { echo "command_line.sh: $*" >&2; exit 1; }

"$CLI" new 36 24 -o "$OUT/command_line.mf1" >/dev/null || fail "marrowfield-cli new failed"

# A file given on the command line is loaded through the Load flow ("Loaded"),
# and the screenshot is a PNG.
"$APP" --screenshot "$OUT/command_line.png" "$OUT/command_line.mf1" 2>"$OUT/command_line.err" \
  || fail "screenshot run failed: $(cat "$OUT/command_line.err")"
grep -q "^MSG \[Marrowfield\] Loaded$" "$OUT/command_line.err" || fail "no Loaded message"
[ -s "$OUT/command_line.png" ] || fail "no screenshot written"
sig=$(head -c 4 "$OUT/command_line.png" | od -An -tx1 | tr -d ' \n')
[ "$sig" = "89504e47" ] || fail "screenshot is not a PNG ($sig)"

# A missing file: the load's own message, and the window still comes up.
"$APP" --screenshot "$OUT/command_line_missing.png" "$OUT/no_such_file.mf1" 2>"$OUT/command_line.err" \
  || fail "run with a missing file failed"
grep -q "^MSG \[Marrowfield\] File does not exist$" "$OUT/command_line.err" || fail "no missing-file message"

# Another program folder without the pictures: the first missing picture is named.
mkdir -p "$OUT/empty_program_dir"
if "$APP" --smoke-test --program-dir "$OUT/empty_program_dir" 2>"$OUT/command_line.err"; then
  fail "a program folder without pictures was accepted"
fi
grep -q 'hex3b.bmp' "$OUT/command_line.err" || fail "missing picture not named: $(cat "$OUT/command_line.err")"

# A scenario whose map folder is a name far too long for any disk: the
# pictures are not found there, and the program shows the game and ends
# normally instead of aborting.
long=$(head -c 5000 /dev/zero | tr '\0' a)
printf 'new 12 10\nset Game.DirMap "\\%s"\nsave %s\n' "$long" "$OUT/command_line_long.mf1" > "$OUT/long.mfs"
"$CLI" run "$OUT/long.mfs" >/dev/null || fail "making the long-folder scenario failed"
rm -f "$OUT/command_line_long.png"
"$APP" --screenshot "$OUT/command_line_long.png" "$OUT/command_line_long.mf1" 2>"$OUT/command_line.err" \
  || fail "the long-folder scenario ended the program: $(tail -3 "$OUT/command_line.err")"
grep -q "^MSG \[Marrowfield\] Loaded$" "$OUT/command_line.err" || fail "the long-folder scenario did not load"
[ -s "$OUT/command_line_long.png" ] || fail "no screenshot of the long-folder scenario"

# Unknown options.
if "$APP" --bogus 2>"$OUT/command_line.err"; then fail "--bogus accepted"; fi
grep -q "unknown option --bogus" "$OUT/command_line.err" || fail "no reason for --bogus"
echo "command line ok"
