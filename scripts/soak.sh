#!/bin/sh
# The long all-computer soak: many whole games with the computer on every
# side, every invariant of the tables checked after every regime turn
# (`marrowfield-cli play --check`). The games go round the shipped scenarios
# and, when the program can make them, three random maps (40 x 40 with 4
# regimes, 60 x 60 with 6, 100 x 100 with 10); game g is played on seed g.
#
# usage: scripts/soak.sh [BUILD-DIR] [GAMES] [TURNS] [JOBS]
#   defaults: build 1000 100 2
# Prints a line for every failed game and a summary (games, turns, time,
# failures); exit code 1 when a game failed.
set -eu
build=${1:-build}
games=${2:-1000}
turns=${3:-100}
jobs=${4:-2}
cli="$build/bin/marrowfield-cli"
scenarios="$build/bin/scenarios"
[ -x "$cli" ] || { echo "soak: no $cli; build it first" >&2; exit 1; }

work=$(mktemp -d "${TMPDIR:-/tmp}/mfsoak.XXXXXX")
trap 'rm -rf "$work"' EXIT

for f in 2PL_Two_Rivers.mf1 scenario1.mf1 scenario2.mf1 scenario3.mf1 scenario4.mf1; do
  [ -f "$scenarios/$f" ] || { echo "soak: no $scenarios/$f; build the content first" >&2; exit 1; }
  echo "$scenarios/$f"
done > "$work/maps"
n=0
for spec in "40 50 4" "60 60 6" "100 60 10"; do
  n=$((n + 1))
  set -- $spec
  if "$cli" random --size "$1" --land "$2" --regimes "$3" --seed "$n" -o "$work/random$n.mf1" \
      > /dev/null 2>&1; then
    echo "$work/random$n.mf1" >> "$work/maps"
  fi
done
maps=$(wc -l < "$work/maps")
echo "soak: $games games of $turns turns over $maps maps, $jobs at a time"

# The games as pairs of lines: map, seed.
g=1
while [ "$g" -le "$games" ]; do
  sed -n "$(( (g - 1) % maps + 1 ))p" "$work/maps"
  echo "$g"
  g=$((g + 1))
done > "$work/games"

start=$(date +%s)
CLI=$cli TURNS=$turns WORK=$work
export CLI TURNS WORK
xargs -d '\n' -n 2 -P "$jobs" sh -c '
  if ! "$CLI" play "$0" --turns "$TURNS" --seed "$1" --check > /dev/null 2> "$WORK/err.$1"; then
    echo "$(basename "$0") seed $1: $(cat "$WORK/err.$1")" > "$WORK/fail.$1"
  fi
  rm -f "$WORK/err.$1"' < "$work/games"
end=$(date +%s)

failures=0
for f in "$work"/fail.*; do
  [ -e "$f" ] || continue
  cat "$f"
  failures=$((failures + 1))
done
echo "soak: $games games, $turns turns each, $((end - start)) s, $failures failed"
[ "$failures" -eq 0 ]
