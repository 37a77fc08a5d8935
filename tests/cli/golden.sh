#!/bin/sh
# The golden all-computer game: the computer plays every side of a shipped
# scenario for 20 rounds on a fixed seed, and the saved game must be the very
# bytes recorded in tests/golden. Speed-ups of the computer player may change
# how it looks at the map, never what it decides; this test holds them to it.
#
# A change of the game's rules or of the scenario changes the game on
# purpose. Record it again, look at the difference, and commit both:
#   sh tests/cli/golden.sh build/bin/marrowfield-cli build/bin/scenarios /tmp/golden --record
#
# usage: golden.sh MARROWFIELD-CLI SCENARIO-DIR WORK-DIR [--record]
set -eu
cli=$1
scenarios=$2
work=$3
record=${4:-}
here=$(cd "$(dirname "$0")/.." && pwd)
rm -rf "$work"
mkdir -p "$work"

for game in "scenario1.mf1 7" "2PL_Two_Rivers.mf1 3"; do
  set -- $game
  file=$1
  seed=$2
  golden="$here/golden/${file%.*}_seed${seed}_20.txt"
  "$cli" play "$scenarios/$file" --turns 20 --seed "$seed" -o "$work/game.mf1" > "$work/rounds.txt"
  # The saved game is kept in its plain form, so that a change reads as text.
  "$cli" unscramble "$work/game.mf1"
  if [ "$record" = "--record" ]; then
    cp "$work/game.mf1" "$golden"
    echo "golden: recorded $golden"
    continue
  fi
  if ! cmp -s "$work/game.mf1" "$golden"; then
    echo "golden: $file on seed $seed after 20 rounds differs from $golden:" >&2
    diff "$golden" "$work/game.mf1" | head -n 20 >&2 || true
    exit 1
  fi
done
echo "golden: the games are as recorded"
