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
trap 'chmod -R u+w "$scratch" 2>/dev/null; rm -rf "$scratch"' EXIT
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

# The installed scenario is scrambled and only read: its bytes and its time
# stay as installed. The time is set back first, so that a rewrite within the
# same second as the install would still show.
scenario=$data/scenarios/scenario1.mf1
touch -d '2001-02-03 04:05:06' "$scenario"
before=$(cksum < "$scenario")
stamp_before=$(stat -c %y "$scenario")

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

after=$(cksum < "$scenario")
[ "$before" = "$after" ] || fail "loading changed the installed scenario"
stamp_after=$(stat -c %y "$scenario")
[ "$stamp_before" = "$stamp_after" ] ||
  fail "loading touched the installed scenario: its time went from $stamp_before to $stamp_after"

# Read-only scenarios load: the installed one write-protected, and a plain
# copy in a folder nobody may write to. The game scrambles a plain file after
# reading it; here it cannot, so the load goes on and the file stays plain.
# Root may write anything, so as root the player is played by nobody.
readonly_dir=$scratch/readonly
mkdir "$readonly_dir"
cp "$scenario" "$readonly_dir/plain.mf1"
"$prefix/bin/marrowfield-cli" unscramble "$readonly_dir/plain.mf1"
plain_before=$(cksum < "$readonly_dir/plain.mf1")
chmod a-w "$scenario" "$readonly_dir/plain.mf1" "$readonly_dir"
cat > readonly.mfs <<SCRIPT
load $scenario
expect Regime[1].Name "Marchland of Orrin"
new 10 10
expect Game.RegimeCount 0
load $readonly_dir/plain.mf1
expect Regime[2].Name "Brannock Free State"
start fog=1
expect Game.Turn 1
SCRIPT
as_player=""
if [ "$(id -u)" = 0 ]; then
  command -v setpriv >/dev/null || fail "running as root, setpriv is needed to load as a player who cannot write"
  as_player="setpriv --reuid=65534 --regid=65534 --clear-groups"
  chmod 755 "$scratch"
fi
$as_player "$prefix/bin/marrowfield-cli" run readonly.mfs > readonly.log 2>&1 ||
  { cat readonly.log >&2; fail "a read-only scenario did not load"; }
[ "$(grep -c '^MSG .*Loaded' readonly.log)" = 2 ] || { cat readonly.log >&2; fail "the read-only scenarios did not both load"; }
[ "$(cksum < "$scenario")" = "$before" ] || fail "loading changed the read-only installed scenario"
[ "$(cksum < "$readonly_dir/plain.mf1")" = "$plain_before" ] || fail "loading changed the read-only plain scenario"
chmod u+w "$scenario" "$readonly_dir"

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
