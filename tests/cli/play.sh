#!/bin/sh
# Whole computer games from the command line: play on the same file and seed
# writes the same bytes twice, balance prints the same table twice and its
# CSV, and bad options and missing files end with exit code 1 and one line.
# usage: play.sh MARROWFIELD-CLI SCENARIO-DIR WORK-DIR
set -eu
cli=$1
scenarios=$2
work=$3
rm -rf "$work"
mkdir -p "$work"
cd "$work"

fail() {
  echo "play: $*" >&2
  exit 1
}

scenario="$scenarios/scenario1.mf1"
before=$(cksum < "$scenario")

"$cli" play "$scenario" --turns 6 --seed 5 -o a.mf1 > a.txt
"$cli" play "$scenario" --turns 6 --seed 5 -o b.mf1 > b.txt
cmp a.mf1 b.mf1 || fail "the same seed gave different files"
cmp a.txt b.txt || fail "the same seed printed different rounds"
[ "$(grep -c '^Turn ' a.txt)" = 6 ] || fail "six rounds should print six lines"
grep -q '^Turn 6 | Marchland of Orrin: towns [0-9]*, formations [0-9]*, pp [0-9]* | Brannock Free State: ' a.txt ||
  fail "the round line is not as documented: $(tail -n 1 a.txt)"
[ "$(cksum < "$scenario")" = "$before" ] || fail "play changed the scenario file it read"
# The saved game goes on from turn 6 with the computer on every side.
"$cli" dump a.mf1 | grep -q '^Game.Turn = 6$' || fail "the saved game is not at turn 6"
"$cli" dump a.mf1 | grep -q '^Regime\[2\].AI = 1$' || fail "the saved game's regimes are not computer-run"

"$cli" balance "$scenario" --games 4 --turns 4 --jobs 2 --csv one.csv > one.txt
"$cli" balance "$scenario" --games 4 --turns 4 --jobs 1 --csv two.csv > two.txt
cmp one.txt two.txt || fail "balance printed two different tables for the same games"
cmp one.csv two.csv || fail "balance wrote two different CSV files"
grep -q '^Marchland of Orrin ' one.txt || fail "balance has no row for the first regime"
[ "$(head -n 1 one.csv | tr -d '\r')" = 'turn,"Marchland of Orrin","Brannock Free State"' ] ||
  fail "the CSV header is $(head -n 1 one.csv)"
[ "$(wc -l < one.csv)" = 5 ] || fail "the CSV should hold a header and four turns"

expect_error() {
  want=$1
  shift
  if "$@" > out.txt 2> err.txt; then fail "$* should have failed"; fi
  [ "$(cat err.txt)" = "$want" ] || fail "$* said \"$(cat err.txt)\", not \"$want\""
}
expect_error "play: cannot read nowhere.mf1" "$cli" play nowhere.mf1 --turns 2
expect_error "play: --turns wants a whole number from 1 to 100000, not \"x\"" "$cli" play "$scenario" --turns x
expect_error "play: unknown option --fast" "$cli" play "$scenario" --turns 2 --fast
expect_error "usage: marrowfield-cli play FILE --turns N [--seed S] [-o OUT] [--check]" "$cli" play "$scenario"
"$cli" play "$scenario" --turns 3 --seed 2 --check > checked.txt || fail "--check failed on a sound game"
expect_error "balance: cannot read nowhere.mf1" "$cli" balance nowhere.mf1 --games 2 --turns 2
expect_error "balance: --jobs wants a whole number from 1 to 64, not \"0\"" \
  "$cli" balance "$scenario" --games 2 --turns 2 --jobs 0
echo "play: all passed"
