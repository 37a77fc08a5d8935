#!/bin/sh
# marrowfield-cli's subcommands end to end: a scenario through JSON and back
# gives the very bytes the scenario file had, dump lists it, the scramble
# commands refuse a file that is already in the state they make, and a
# failing script ends the program with exit code 1 and its one line.
# usage: subcommands.sh MARROWFIELD-CLI SOURCE-DIR WORK-DIR
set -eu
cli=$1
work=$3
rm -rf "$work"
mkdir -p "$work"
cd "$work"

fail() {
  echo "subcommands: $*" >&2
  exit 1
}

# A scenario with something in every part of the file.
cat > setup.mfs <<'SCRIPT'
new 14 11
set Game.ScenarioStory "Two coasts, one river."
set Game.RegimeCount 2
set Regime[1].Name "Red Coast"
set Regime[2].Name "Ærø Øst"
set Regime[2].AI 1
set Regime[1].Research[12] 1
# A stored Cost of 0 reads back as 999, so a file that is to come back byte
# for byte holds no 0 there, as every file the game writes.
set Dip[1,1].Cost 999
set Dip[1,2].Cost 30
set Dip[2,1].Cost 999
set Dip[2,2].Cost 999
set Dip[2,1].Relation 1
set Shq[1,2].StockType[3] 2
set Shq[1,2].StockQty[3] 250
set News[1,5].Type 101
set News[1,5].Text "The 3rd Bataljon was destroyed"
set Game.EventCount 2
set Event[2].Story "The river floods."
set Event[2].Data[30] -9
set Event[2].DataText[1] "Ærø"
set Game.BookVar[7] 5
set Hex[3,4].Land 3
set Hex[3,4].Pop 5
set Hex[3,4].UrbanName "Port Vell"
set Hex[3,4].Owner 1
set Hex[3,4].River[5] 1
set Hex[3,4].Entrench[2] 3
set Hex[3,4].Seen[2] 1
set Game.PeopleCount 1
set People[1].Name Coastfolk
set People[1].FirstName[3] Karl
set Game.OfficerCount 1
set Officer[1].Name "Karl Berg"
set Officer[1].Regime 1
set Officer[1].Fame 33
set Game.UnitCount 2
set Unit[1].Name "1st Bataljon"
set Unit[1].Regime 1
set Unit[1].InfType 1
set Unit[1].InfQty 10
set Unit[1].Readiness 85
set Unit[1].Officer 1
set Hex[3,4].Unit[1] 1
set Research[3].Name Gunnery
set Research[3].Cost 120
set Game.TypeCount 2
set Type[1].Name Rifles
set Type[1].Class 1
set Type[1].Attr[16] 1
set Type[2].Name "Heavy Guns"
set Type[2].Class 3
set Type[2].Attr[16] 10
set Type[2].Living[1] 1
set Game.ShowAIMoves True
set EngineVar[533] 4
save scenario.mf1
expect-msg Saved
SCRIPT
"$cli" run setup.mfs > setup.out || fail "the set-up script failed"

"$cli" export scenario.mf1 -o a.json || fail "export failed"
"$cli" import a.json -o b.mf1 || fail "import failed"
cmp scenario.mf1 b.mf1 || fail "scenario -> JSON -> scenario changed the bytes"
"$cli" export b.mf1 -o b.json || fail "second export failed"
cmp a.json b.json || fail "the second export differs from the first"
"$cli" dump scenario.mf1 --json > c.json || fail "dump --json failed"
cmp a.json c.json || fail "dump --json differs from export"

# The listing names the fields by their registry names.
"$cli" dump scenario.mf1 > dump.txt || fail "dump failed"
grep -qx 'Game.MapW = 14' dump.txt || fail "dump lacks Game.MapW = 14"
grep -qx 'Regime\[2\].Name = Ærø Øst' dump.txt || fail "dump lacks Regime[2].Name"
grep -qx 'Hex\[3,4\].Unit\[1\] = 1' dump.txt || fail "dump lacks Hex[3,4].Unit[1]"
grep -qx 'Game.PeopleCount (again) = 1' dump.txt || fail "dump lacks the repeated people count"

# Export and dump leave the file on disk as it was.
"$cli" new 14 11 -o fresh.mf1 || fail "new failed"
cp scenario.mf1 before.mf1
"$cli" export scenario.mf1 -o d.json >/dev/null
cmp scenario.mf1 before.mf1 || fail "export changed the scenario file"

# Scramble and unscramble, and their refusals.
"$cli" unscramble scenario.mf1 || fail "unscramble failed"
head -c 7 scenario.mf1 | od -An -c | tr -s ' ' | grep -q '^ 1 1 1 \\r \\n$' || fail "an unscrambled file does not begin with ' 111 '"
if "$cli" unscramble scenario.mf1 2> err.txt; then fail "unscramble of a plain file succeeded"; fi
[ "$(cat err.txt)" = "unscramble: scenario.mf1 is not scrambled" ] || fail "wrong refusal: $(cat err.txt)"
"$cli" scramble scenario.mf1 || fail "scramble failed"
cmp scenario.mf1 before.mf1 || fail "unscramble then scramble changed the bytes"
if "$cli" scramble scenario.mf1 2> err.txt; then fail "scramble of a scrambled file succeeded"; fi
[ "$(cat err.txt)" = "scramble: scenario.mf1 is already scrambled" ] || fail "wrong refusal: $(cat err.txt)"

# Parts of the game that are not built yet say so.
# A random scenario: the same seed twice gives the same bytes, another seed
# other bytes, and a refusal of the dialog is its message and exit code 1.
"$cli" random --seed 5 --size 30 --land 50 --regimes 3 -o r1.mf1 > out.txt || fail "random failed"
"$cli" random --seed 5 --size 30 --land 50 --regimes 3 -o r2.mf1 > out.txt || fail "random failed"
cmp r1.mf1 r2.mf1 || fail "two random maps of seed 5 differ"
"$cli" random --seed 6 --size 30 --land 50 --regimes 3 -o r3.mf1 > out.txt || fail "random failed"
if cmp -s r1.mf1 r3.mf1; then fail "seeds 5 and 6 gave the same map"; fi
"$cli" dump r1.mf1 > dump.txt || fail "dump of a random map failed"
grep -qx "Game.MapW = 30" dump.txt || fail "the random map is not 30 wide"
grep -qx "Game.RegimeCount = 3" dump.txt || fail "the random map has not 3 regimes"
grep -qx "Game.Turn = 0" dump.txt || fail "the random map was saved after its start"
if "$cli" random --size 9 -o r4.mf1 2> err.txt > out.txt; then fail "random of size 9 succeeded"; fi
[ "$(cat err.txt)" = "Map size between 10-100" ] || fail "wrong random refusal: $(cat err.txt)"
[ ! -e r4.mf1 ] || fail "a refused random map was saved"
if "$cli" random --humans 0,0 --regimes 2 -o r4.mf1 2> err.txt > out.txt; then fail "random without humans succeeded"; fi
[ "$(cat err.txt)" = "You must at least select 1 human player." ] || fail "wrong random refusal: $(cat err.txt)"
if "$cli" random --frob -o r4.mf1 2> err.txt; then fail "random with an unknown option succeeded"; fi
[ "$(cat err.txt)" = "random: unknown option --frob" ] || fail "wrong message: $(cat err.txt)"
# A script whose check fails.
printf 'new 12 10\nexpect Game.MapW 13\n' > failing.mfs
if "$cli" run failing.mfs > out.txt 2> err.txt; then fail "a failing script exited 0"; fi
[ "$(cat err.txt)" = 'failing.mfs:2: expect Game.MapW: expected "13", got "12"' ] || fail "wrong failure line: $(cat err.txt)"
if "$cli" run missing.mfs 2> err.txt; then fail "a missing script exited 0"; fi
[ "$(cat err.txt)" = "cannot read script missing.mfs: it does not exist" ] || fail "wrong message: $(cat err.txt)"
# Folders and devices are refused with a clear line, never read as a script,
# a JSON scenario or a content source; and nothing is written for them.
mkdir -p afolder
refused() {  # refused EXPECTED-ERROR COMMAND...
  want=$1
  shift
  if "$@" > out.txt 2> err.txt; then fail "$* exited 0"; fi
  [ "$(cat err.txt)" = "$want" ] || fail "$*: wrong message: $(cat err.txt)"
}
refused "cannot read script afolder: it is a folder" "$cli" run afolder
refused "cannot read script /dev/zero: it is not a regular file" "$cli" run /dev/zero
refused "cannot read script /dev/null: it is not a regular file" "$cli" run /dev/null
refused "import: cannot read afolder: it is a folder" "$cli" import afolder -o x.mf1
refused "import: cannot read /dev/zero: it is not a regular file" "$cli" import /dev/zero -o x.mf1
refused "dump: cannot read afolder: it is a folder" "$cli" dump afolder
refused "scramble: cannot read /dev/zero: it is not a regular file" "$cli" scramble /dev/zero
refused 'new: "abc def" is not a map size (two whole numbers, width and height)' "$cli" new abc def -o x.mf1
printf 'afolder: cannot read the file: it is a folder\ncompile: afolder: 1 fault\n' > want.txt
if "$cli" compile afolder -o x.mf1 > out.txt 2> err.txt; then fail "compile of a folder exited 0"; fi
cmp -s err.txt want.txt || fail "compile of a folder: wrong message: $(cat err.txt)"
printf 'include afolder\n' > inc.txt
printf 'afolder: cannot read the file: it is a folder\ncompile: inc.txt: 1 fault\n' > want.txt
if "$cli" compile inc.txt -o x.mf1 > out.txt 2> err.txt; then fail "an include of a folder exited 0"; fi
cmp -s err.txt want.txt || fail "include of a folder: wrong message: $(cat err.txt)"
[ ! -e x.mf1 ] || fail "a refused command wrote its output"
if "$cli" frobnicate 2> err.txt; then fail "an unknown command exited 0"; fi
[ "$(cat err.txt)" = "unknown command: frobnicate" ] || fail "wrong message: $(cat err.txt)"
echo "subcommands: ok"
