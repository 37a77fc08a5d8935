#!/bin/sh
# The golden all-computer games: the computer plays every side for 20 rounds
# on a fixed seed, once on a shipped scenario (the Six Crowns: six regimes,
# armies that fight, towns that change hands, production running) and once
# on a map of the random scenario generator, and the saved game and the
# lines `play` printed must be the very bytes recorded in tests/data.
# Speed-ups of the computer player may change how it looks at the map, never
# what it decides; this test holds them to it.
#
# A change of the game's rules, of a scenario or of the generator changes
# the games on purpose. Record them again into the data folder, look at the
# difference, and commit both:
#   MF_RECORD_GOLDEN=tests/data sh tests/cli/golden.sh build/bin/marrowfield-cli build/bin/scenarios /tmp/golden
#
# usage: golden.sh MARROWFIELD-CLI SCENARIO-DIR WORK-DIR
#   MF_TEST_DATA: the folder of the recorded games (ctest sets it)
#   MF_RECORD_GOLDEN: a folder to record the games into instead of comparing
set -eu
cli=$1
scenarios=$2
work=$3
here=$(cd "$(dirname "$0")/.." && pwd)
data=${MF_TEST_DATA:-$here/data}
record=${MF_RECORD_GOLDEN:-}
rm -rf "$work"
mkdir -p "$work"

# The generator's map: 40 x 40, 60% land, 4 regimes, generator seed 3.
"$cli" random --size 40 --land 60 --regimes 4 --seed 3 -o "$work/random40.mf1" > "$work/random.txt"

failed=0
for game in "$scenarios/scenario3.mf1 7 play_scenario3_seed7" "$work/random40.mf1 7 play_random40_seed7"; do
  set -- $game
  file=$1
  seed=$2
  name=$3
  "$cli" play "$file" --turns 20 --seed "$seed" -o "$work/$name.mf1" > "$work/${name}_rounds.txt"
  # The saved game is kept in its plain form, so that a change reads as text.
  "$cli" unscramble "$work/$name.mf1" > /dev/null
  if [ -n "$record" ]; then
    cp "$work/$name.mf1" "$record/${name}_20_rounds.txt"
    cp "$work/${name}_rounds.txt" "$record/${name}_20_rounds_printed.txt"
    echo "golden: recorded $record/${name}_20_rounds.txt and its printed rounds"
    continue
  fi
  for pair in "$name.mf1 ${name}_20_rounds.txt" "${name}_rounds.txt ${name}_20_rounds_printed.txt"; do
    set -- $pair
    if [ ! -f "$data/$2" ]; then
      echo "golden: no recorded $data/$2" >&2
      failed=1
    elif ! cmp -s "$work/$1" "$data/$2"; then
      echo "golden: $(basename "$file") on seed $seed after 20 rounds differs from $data/$2:" >&2
      diff "$data/$2" "$work/$1" | head -n 20 >&2 || true
      failed=1
    fi
  done
done
[ "$failed" -eq 0 ] || exit 1
echo "golden: the games are as recorded"
