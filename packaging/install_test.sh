#!/bin/sh
# The game installs and runs from its install folder: `cmake --install` into
# a scratch prefix, then the headless program loads and starts an installed
# scenario from there, and the windowed program (when built) opens on the
# offscreen platform and finds its pictures. The player's folders are a
# scratch HOME, so nothing is written anywhere else.
#   install_test.sh BUILD_DIR [marrowfield]
set -eu
build=$1
gui=${2:-}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix=$scratch/prefix
export HOME=$scratch/home
unset XDG_DATA_HOME XDG_CONFIG_HOME || true
mkdir -p "$HOME"

cmake --install "$build" --prefix "$prefix" >"$scratch/install.log"

fail() { echo "packaging: $*" >&2; exit 1; }
data=$prefix/share/marrowfield
[ -x "$prefix/bin/marrowfield-cli" ] || fail "no bin/marrowfield-cli"
[ -f "$data/scenarios/scenario1.mf1" ] || fail "no share/marrowfield/scenarios/scenario1.mf1"
[ -f "$data/default/map/hex3b.bmp" ] || fail "no share/marrowfield/default/map/hex3b.bmp"
[ -f "$data/default/map/hex3b@2x.bmp" ] || fail "no 2x pictures"
[ -f "$data/default/sound/click.wav" ] || fail "no sounds"

# The installed scenario is only read: its bytes stay as installed.
before=$(cksum < "$data/scenarios/scenario1.mf1")

# Run from somewhere else entirely, so only the install can be found.
cd "$scratch"
cat > play.mfs <<SCRIPT
load $data/scenarios/scenario1.mf1
start fog=1
expect Game.Turn 1
expect Game.CurRegime 1
save \$TMP/saved.mf1
SCRIPT
"$prefix/bin/marrowfield-cli" run play.mfs > cli.log 2>&1 || { cat cli.log >&2; fail "marrowfield-cli could not play the installed scenario"; }
grep -q "Loaded" cli.log || { cat cli.log >&2; fail "the installed scenario did not load"; }

after=$(cksum < "$data/scenarios/scenario1.mf1")
[ "$before" = "$after" ] || fail "loading changed the installed scenario"

if [ -n "$gui" ]; then
  [ -x "$prefix/bin/marrowfield" ] || fail "no bin/marrowfield"
  [ -f "$prefix/share/applications/marrowfield.desktop" ] || fail "no desktop entry"
  [ -f "$prefix/share/icons/hicolor/scalable/apps/marrowfield.svg" ] || fail "no icon"
  grep -q '^Exec=marrowfield' "$prefix/share/applications/marrowfield.desktop" || fail "the desktop entry does not start the game"
  # A missing picture would stop the program with a message and exit 1.
  "$prefix/bin/marrowfield" --smoke-test > gui.log 2>&1 || { cat gui.log >&2; fail "the installed program did not start"; }
  "$prefix/bin/marrowfield" "$data/scenarios/scenario1.mf1" --screenshot "$scratch/shot.png" > shot.log 2>&1 ||
    { cat shot.log >&2; fail "the installed program could not show the installed scenario"; }
  [ -s "$scratch/shot.png" ] || fail "no screenshot from the installed program"
fi
echo "packaging: installed into $prefix and played from there"
