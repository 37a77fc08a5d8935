#!/bin/sh
# The layer check passes on the core as it is, and fails on a copy of it
# with one include planted against the stack, naming the file, the line and
# the include. Includes the stack allows, planted the same way, pass.
# Usage: check_layers_test.sh CHECK_SCRIPT CORE_DIR WORK_DIR
set -u
check="$1"
core="$2"
work="$3"

failures=0
fail() {
  echo "FAIL: $1"
  failures=$((failures + 1))
}

# The real core passes.
if ! out=$("$check" "$core" 2>&1); then
  echo "$out"
  fail "the core itself breaks the stack of layers"
fi

# plant FILE LINE: LINE put at the top of FILE in the copy of the core
# (FILE is made if it does not exist).
plant() {
  mkdir -p "$(dirname "$work/core/$1")"
  if [ -f "$work/core/$1" ]; then
    { echo "$2"; cat "$work/core/$1"; } > "$work/core/$1.new"
    mv "$work/core/$1.new" "$work/core/$1"
  else
    echo "$2" > "$work/core/$1"
  fi
}

fresh_copy() {
  rm -rf "$work"
  mkdir -p "$work"
  cp -R "$core" "$work/core"
}

# Every include against the stack is planted into one copy; the check must
# fail and name each of them (file, line, include and why). Expected lines
# are kept in a list to compare once the check has run.
expected="$(mktemp)"
fresh_copy
# must_fail FILE LINE EXPECTED
must_fail() {
  plant "$1" "$2"
  echo "$3" >> "$expected"
}

# Upward includes.
must_fail model/arith.cpp '#include "control/order_state.h"' \
  "model/arith.cpp:1: model/ may not include control/order_state.h (control/ stands above model/)"
must_fail files/json_io.cpp '#include "engine/supply.h"' \
  "files/json_io.cpp:1: files/ may not include engine/supply.h (engine/ stands above files/)"
must_fail orders/movement.cpp '#include "view/counter.h"' \
  "orders/movement.cpp:1: orders/ may not include view/counter.h (view/ stands above orders/)"
must_fail view/panel.cpp '#include "control/selection.h"' \
  "view/panel.cpp:1: view/ may not include control/selection.h (control/ stands above view/)"
# The seam knows no game table.
must_fail platform/platform.cpp '#include "model/game_state.h"' \
  "platform/platform.cpp:1: platform/ may not include model/game_state.h (model/ stands above platform/)"
# Rule folders that must not know each other.
must_fail engine/supply.cpp '#include "ai/ai_turn.h"' \
  "engine/supply.cpp:1: engine/ may not include ai/ai_turn.h (ai/ stands above engine/)"
must_fail combat/fire.cpp '#include "editor/map_paint.h"' \
  "combat/fire.cpp:1: combat/ may not include editor/map_paint.h (editor/ stands above combat/)"
must_fail ai/sorted_list.cpp '#include "random/generator.h"' \
  "ai/sorted_list.cpp:1: ai/ may not include random/generator.h (random/ stands above ai/)"
must_fail ai/ai_turn.cpp '#include "control/order_state.h"' \
  "ai/ai_turn.cpp:1: ai/ may not include control/order_state.h (control/ stands above ai/)"
# Nothing in the core reaches the programs or Qt.
must_fail view/counter.cpp '#include "app/main_window.h"' \
  "view/counter.cpp:1: the core may not include the programs' app/main_window.h"
must_fail control/keyboard.cpp '#include "cli/script_runner.h"' \
  "control/keyboard.cpp:1: the core may not include the programs' cli/script_runner.h"
must_fail view/canvas.cpp '#include <QPainter>' \
  "view/canvas.cpp:1: the core may not include the Qt header QPainter"
# A new folder needs its place in the stack first.
must_fail extra/thing.cpp '#include "model/game_state.h"' \
  "extra/thing.cpp: the folder extra/ has no place in the stack of layers"

if out=$("$check" "$work/core" 2>&1); then
  fail "the check passed a core with includes planted against the stack"
fi
while IFS= read -r want; do
  case "$out" in
    *"$want"*) ;;
    *) fail "the report does not say: $want" ;;
  esac
done < "$expected"
rm -f "$expected"
# One line for each planted include, and none for the others.
lines=$(echo "$out" | grep -vc '^check-layers:')
if [ "$lines" -ne 13 ]; then
  echo "$out"
  fail "the report has $lines lines instead of 13"
fi

# Includes the stack allows, planted into a fresh copy: the check passes.
fresh_copy
must_pass() {
  plant "$1" "$2"
}
must_pass engine/supply.cpp '#include "orders/movement.h"'
must_pass orders/movement.cpp '#include "combat/attack.h"'
must_pass combat/fire.cpp '#include "engine/news.h"'
must_pass ai/ai_turn.cpp '#include "combat/attack.h"'
must_pass random/generator.cpp '#include "ai/sorted_list.h"'
must_pass editor/map_paint.cpp '#include "random/generator.h"'
must_pass view/panel.cpp '#include "combat/frontage.h"'
must_pass control/turn_cycle.cpp '#include "view/draw_hex.h"'
must_pass model/game_state.cpp '#include "platform/platform.h"'
must_pass files/json_io.cpp '#include "model/game_state.h"'
if ! out=$("$check" "$work/core" 2>&1); then
  echo "$out"
  fail "the check refused includes the stack allows"
fi

rm -rf "$work"
if [ "$failures" -ne 0 ]; then
  echo "$failures check(s) of the layer check failed"
  exit 1
fi
echo "layer check: the core passes, every planted include was judged right"
exit 0
