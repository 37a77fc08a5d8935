#!/usr/bin/env bash
# Runs every fuzz target (or those named) for a set time each, one after the
# other, from the seed corpus in the tree and the format's dictionary.
#   tests/fuzz/run.sh BUILD_DIR SECONDS [TARGET...]
# New inputs a target finds go to BUILD_DIR/corpus/TARGET (kept between
# runs), the input of a crash, a sanitizer report, a timeout or running out
# of memory to BUILD_DIR/artifacts, the whole output to BUILD_DIR/TARGET.log.
# Exits 1 when any target found something.
set -uo pipefail
cd "$(dirname "$0")/../.."

build=${1:?build folder}
seconds=${2:?seconds per target}
shift 2
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  targets=(fuzz_scenario_reader fuzz_load_and_play fuzz_json_import fuzz_content_compiler fuzz_script_runner)
fi

mkdir -p "$build/artifacts"
failed=()
for t in "${targets[@]}"; do
  bin="$build/bin/$t"
  if [ ! -x "$bin" ]; then
    echo "fuzz: $bin is not built"
    failed+=("$t")
    continue
  fi
  mkdir -p "$build/corpus/$t"
  echo "fuzz: $t for $seconds s"
  # One input may take at most 30 s and 4 GB; the longest seed sets the
  # longest input, so a target stays at the speed of a small world.
  "$bin" -max_total_time="$seconds" -timeout=30 -rss_limit_mb=4096 -print_final_stats=1 \
    -dict=tests/fuzz/marrowfield.dict -artifact_prefix="$build/artifacts/$t-" \
    "$build/corpus/$t" "tests/fuzz/corpus/$t" > "$build/$t.log" 2>&1
  rc=$?
  grep -E "^#[0-9]+[[:space:]]+(INITED|DONE)|^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb)" "$build/$t.log"
  if [ $rc -ne 0 ]; then
    echo "fuzz: $t stopped with exit code $rc:"
    grep -E -A30 "^==[0-9]+==|runtime error|ERROR: libFuzzer" "$build/$t.log" | head -60
    grep -E "^artifact_prefix|Test unit written to" "$build/$t.log"
    failed+=("$t")
  fi
done

if [ ${#failed[@]} -ne 0 ]; then
  echo "fuzz: found something in ${failed[*]} (inputs in $build/artifacts, output in $build/<target>.log)"
fi
echo "fuzz: $((${#targets[@]} - ${#failed[@]})) passed, ${#failed[@]} failed"
[ ${#failed[@]} -eq 0 ]
