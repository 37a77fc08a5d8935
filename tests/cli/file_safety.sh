#!/bin/sh
# No player's file is lost: loads and imports of what cannot be read are
# refused with the game left as it was; a scrambled file is read in memory
# and left untouched (bytes and time); a plain one ends scrambled; a file on
# a read-only disk loads in full; writes are atomic (a full disk keeps the
# old file, an unrelated NAME.tmp survives), and keep links and permissions.
#
# Run as root (as CI does), the read-only and full disks are small tmpfs
# mounts in a private mount namespace and the file without permission is read
# by the user nobody; run as anyone else, permissions make the read-only
# disk and the unreadable file, and a file size limit makes the full disk.
# Both ways assert the same outcomes.
# usage: file_safety.sh MARROWFIELD-CLI WORK-DIR
set -eu
cli=$1
work=$2

if [ "$(id -u)" -eq 0 ] && [ -z "${MF_FILE_SAFETY_NS:-}" ]; then
  # Mounts made below vanish with this private namespace.
  MF_FILE_SAFETY_NS=1 exec unshare -m --propagation private sh "$0" "$@"
fi
root=no
[ "$(id -u)" -eq 0 ] && root=yes

rm -rf "$work"
mkdir -p "$work"
chmod 755 "$work"
cd "$work"

fail() {
  echo "file_safety: $*" >&2
  exit 1
}
mtime() { stat -c %Y "$1"; }
mode() { stat -c %a "$1"; }

# A game worth keeping: two regimes, a unit, a type, a story.
cat > make.mfs <<'SCRIPT'
new 14 11
set Game.RegimeCount 2
set Regime[1].Name Red
set Regime[2].Name Blue
set Dip[1,2].Cost 30
set Game.TypeCount 1
set Type[1].Name Rifles
set Type[1].Class 1
set Type[1].Attr[16] 1
set Game.UnitCount 1
set Unit[1].Name "1st Bataljon"
set Unit[1].Regime 1
set Unit[1].InfType 1
set Unit[1].InfQty 10
set Hex[3,4].Unit[1] 1
set EngineVar[533] 4
save game.mf1
SCRIPT
"$cli" run make.mfs > make.out || fail "making the game failed: $(cat make.out)"
cp game.mf1 scrambled.mf1
cp game.mf1 plain.mf1
"$cli" unscramble plain.mf1 || fail "unscramble failed"
cp plain.mf1 plain.orig

# What the loaded game must hold, as a script's checks.
expect_full_game() {
  printf 'expect Game.MapW 14\nexpect Game.RegimeCount 2\nexpect Unit[1].Name "1st Bataljon"\n'
  printf 'expect Type[1].Name Rifles\nexpect EngineVar[533] 4\nexpect Dip[1,2].Cost 30\n'
}

# ---- Refused loads and imports leave the game as it was ------------------
mkdir -p afolder
cat > refused.mfs <<SCRIPT
load game.mf1
load afolder
expect-msg "Cannot read afolder: it is a folder."
load /dev/null
expect-msg "Cannot read /dev/null: it is not a regular file."
import afolder
expect-msg "Cannot read afolder: it is a folder."
import /dev/zero
expect-msg "Cannot read /dev/zero: it is not a regular file."
$(expect_full_game)
expect UI.EditMode 1
SCRIPT
"$cli" run refused.mfs > out.txt 2> err.txt || fail "refused loads: $(cat err.txt)"

# A file the player may not read: refused, the game kept.
cp game.mf1 secret.mf1
chmod 000 secret.mf1
cat > noperm.mfs <<SCRIPT
load game.mf1
load secret.mf1
expect-msg "Cannot read secret.mf1: it cannot be opened: Permission denied."
import secret.mf1
expect-msg "Cannot read secret.mf1: it cannot be opened: Permission denied."
$(expect_full_game)
SCRIPT
chmod 644 noperm.mfs
chmod 644 game.mf1  # nobody must be able to read the good file
if [ $root = yes ]; then
  setpriv --reuid=65534 --regid=65534 --clear-groups "$cli" run noperm.mfs > out.txt 2> err.txt ||
    fail "a load without permission: $(cat err.txt)"
else
  "$cli" run noperm.mfs > out.txt 2> err.txt || fail "a load without permission: $(cat err.txt)"
fi
chmod 600 secret.mf1

# ---- A scrambled file is read in memory; a plain one ends scrambled ------
touch -d '2020-01-02 03:04:05' scrambled.mf1
before=$(mtime scrambled.mf1)
printf 'load scrambled.mf1\nexpect-msg Loaded\n%s\n' "$(expect_full_game)" > s.mfs
"$cli" run s.mfs > out.txt 2> err.txt || fail "load of a scrambled file: $(cat err.txt)"
cmp -s scrambled.mf1 game.mf1 || fail "a load changed the bytes of a scrambled file"
[ "$(mtime scrambled.mf1)" = "$before" ] || fail "a load touched a scrambled file"
printf 'load plain.mf1\nexpect-msg Loaded\n%s\n' "$(expect_full_game)" > p.mfs
"$cli" run p.mfs > out.txt 2> err.txt || fail "load of a plain file: $(cat err.txt)"
cmp -s plain.mf1 game.mf1 || fail "a plain file was not left scrambled by its load"

# ---- A read-only disk loads in full and is not changed -------------------
mkdir -p ro
cp game.mf1 ro/scrambled.mf1
cp plain.orig ro/plain.mf1
if [ $root = yes ]; then
  mount -t tmpfs -o size=2m tmpfs ro
  cp game.mf1 ro/scrambled.mf1
  cp plain.orig ro/plain.mf1
  mount -o remount,ro ro
else
  chmod 444 ro/scrambled.mf1 ro/plain.mf1
  chmod 555 ro
fi
for f in scrambled plain; do
  printf 'load ro/%s.mf1\nexpect-msg Loaded\n%s\n' "$f" "$(expect_full_game)" > ro_$f.mfs
  "$cli" run ro_$f.mfs > out.txt 2> err.txt || fail "load of a $f file on a read-only disk: $(cat err.txt)"
done
cmp -s ro/scrambled.mf1 game.mf1 || fail "the read-only scrambled file changed"
cmp -s ro/plain.mf1 plain.orig || fail "the read-only plain file changed"
if [ $root = yes ]; then umount ro; else chmod 755 ro; fi

# ---- Atomic writes: a full disk keeps the old file ------------------------
mkdir -p full
"$cli" export game.mf1 -o big.json || fail "export failed"
printf '{"old": "a good file"}\n' > small.json
if [ $root = yes ]; then
  size=$(( $(stat -c %s big.json) / 2 ))
  mount -t tmpfs -o size=$size tmpfs full
  cp small.json full/out.json
  cp game.mf1 full/save.mf1
  "$cli" export game.mf1 -o full/out.json > out.txt 2> err.txt && fail "an export onto a full disk succeeded"
  grep -q "^export: cannot write full/out.json: " err.txt || fail "export onto a full disk: $(cat err.txt)"
  # A save of a bigger game onto the full disk, and the old save kept.
  dd if=/dev/zero of=full/filler bs=4096 count=$(( size / 4096 - 8 )) 2>/dev/null || true
  printf 'load game.mf1\nset Game.ScenarioStory "%s"\nsave full/save.mf1\nexpect-msg "Save canceled"\n' \
    "$(head -c 60000 /dev/zero | tr '\0' 'x')" > full.mfs
  "$cli" run full.mfs > out.txt 2> err.txt || fail "a save onto a full disk: $(cat err.txt)"
  cmp -s full/save.mf1 game.mf1 || fail "a failed save damaged the old file"
else
  cp small.json full/out.json
  # A file size limit far below the export: the write fails as on a full disk.
  (trap '' XFSZ; ulimit -f 8; "$cli" export game.mf1 -o full/out.json > out.txt 2> err.txt) &&
    fail "an export past the size limit succeeded"
  grep -q "^export: cannot write full/out.json: " err.txt || fail "export past the limit: $(cat err.txt)"
fi
cmp -s full/out.json small.json || fail "a failed export damaged the old file"
[ "$(ls -A full | grep -c tmp || true)" = 0 ] || fail "a failed write left a temporary file: $(ls -A full)"
if [ $root = yes ]; then umount full; fi

# ---- Links and permissions are kept; unrelated files are left alone ------
cp game.mf1 real.mf1
chmod 600 real.mf1
ln -sf real.mf1 link.mf1
printf 'keep me\n' > link.mf1.tmp
printf 'keep me too\n' > real.mf1.tmp
printf 'load link.mf1\nset Regime[1].Password rosebud\nsave link.mf1\nexpect-msg Saved\n' > link.mfs
"$cli" run link.mfs > out.txt 2> err.txt || fail "save through a link: $(cat err.txt)"
[ -L link.mf1 ] || fail "a save replaced a link by a file"
[ "$(mode real.mf1)" = 600 ] || fail "a save changed the mode 600 of the file to $(mode real.mf1)"
cmp -s real.mf1 game.mf1 && fail "a save through a link did not reach the file"
[ "$(cat link.mf1.tmp)" = "keep me" ] || fail "a save removed an unrelated .tmp file"
[ "$(cat real.mf1.tmp)" = "keep me too" ] || fail "a save removed an unrelated .tmp file"
# A plain file behind a link is scrambled in its place, the link kept.
cp plain.orig real.mf1
chmod 600 real.mf1
printf 'load link.mf1\nexpect-msg Loaded\n' > link2.mfs
"$cli" run link2.mfs > out.txt 2> err.txt || fail "load through a link: $(cat err.txt)"
[ -L link.mf1 ] || fail "the scrambling of a load replaced a link by a file"
cmp -s real.mf1 game.mf1 || fail "a plain file behind a link was not left scrambled"
[ "$(mode real.mf1)" = 600 ] || fail "the scrambling of a load changed the mode 600 to $(mode real.mf1)"
# export -o through a link too.
ln -sf small.json out_link.json
"$cli" export game.mf1 -o out_link.json || fail "export through a link failed"
[ -L out_link.json ] || fail "export replaced a link by a file"
cmp -s small.json big.json || fail "export through a link did not reach the file"

echo "file_safety: ok ($( [ $root = yes ] && echo 'tmpfs mounts, user nobody' || echo 'permissions, size limit'))"
