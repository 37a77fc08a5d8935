#!/usr/bin/env bash
# Runs every fuzz target (or those named) for a set time each, one after the
# other, from the seed corpus in the tree and the format's dictionary.
#   tests/fuzz/run.sh BUILD_DIR SECONDS [TARGET...]
# FUZZ_SEED=N in the environment gives libFuzzer that seed (CI does, so a
# red run can be run again as it went); without it each run takes a seed of
# its own, told in the output, for longer runs that look further.
# New inputs a target finds go to BUILD_DIR/corpus/TARGET (kept between
# runs), the input of a crash, a sanitizer report, a timeout or running out
# of memory to BUILD_DIR/artifacts, the whole output to BUILD_DIR/TARGET.log.
# What was found is told again at the very end, with the sanitizer's summary,
# the first frames of our own code and, for an input under 4 KB, the input
# itself in base64, so that the tail of a CI log is enough to replay it.
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
seed=${FUZZ_SEED:-}
if [ -n "$seed" ] && ! [[ "$seed" =~ ^[0-9]+$ ]]; then
  echo "fuzz: FUZZ_SEED must be a whole number, not \"$seed\""
  exit 2
fi
seed_arg=()
[ -n "$seed" ] && seed_arg=(-seed="$seed")
# An undefined behaviour stops the run with its stack, as a crash does.
export UBSAN_OPTIONS="print_stacktrace=1${UBSAN_OPTIONS:+:$UBSAN_OPTIONS}"

# What a target found, from its log: the error and summary lines, the first
# frames in our own code, the input and how to replay it.
report() {
  local t=$1 log=$2 artifact
  echo "---- fuzz: $t found something ----"
  grep -m1 -E "^INFO: Seed:" "$log"
  grep -E "^==[0-9]+== ?ERROR|^SUMMARY:|runtime error:|^terminate called|^  what\(\):|^ERROR: libFuzzer|^==[0-9]+== ERROR: libFuzzer" "$log" |
    cut -c1-300 | head -8
  # Frames of the game, the CLI and the targets, shortened to the function
  # and its file and line; the sanitizers' and libFuzzer's own come first
  # and tell nothing.
  echo "first frames in our code:"
  grep -E "^ +#[0-9]+ " "$log" | grep -E "/(src/(core|cli)|tests/fuzz)/" |
    sed -E 's/^ +(#[0-9]+) 0x[0-9a-f]+ in (.*) (\/[^ ]*)$/\1 \3  \2/; s#[^ ]*/\.\./\.\./\.\./##' |
    cut -c1-220 | head -10
  artifact=$(grep -m1 -oE "Test unit written to [^ ]+" "$log" | sed 's/^Test unit written to //')
  if [ -n "$artifact" ] && [ -f "$artifact" ]; then
    local size
    size=$(wc -c < "$artifact")
    echo "input: $artifact ($size bytes)"
    if [ "$size" -lt 4096 ]; then
      echo "to replay it, keep the lines between the marks as input.b64, then:"
      echo "  base64 -d input.b64 > input.bin && $build/bin/$t input.bin"
      echo "-----BEGIN INPUT-----"
      base64 < "$artifact"
      echo "-----END INPUT-----"
    else
      echo "to replay it: $build/bin/$t $artifact"
    fi
  else
    echo "no input was written; the whole output is in $log"
  fi
}

mkdir -p "$build/artifacts"
failed=()  # not built, or found something
found=()   # ran and found something
for t in "${targets[@]}"; do
  bin="$build/bin/$t"
  if [ ! -x "$bin" ]; then
    echo "fuzz: $bin is not built"
    failed+=("$t")
    continue
  fi
  mkdir -p "$build/corpus/$t"
  echo "fuzz: $t for $seconds s${seed:+ with seed $seed}"
  # One input may take at most 30 s and 4 GB; the longest seed sets the
  # longest input, so a target stays at the speed of a small world.
  "$bin" -max_total_time="$seconds" -timeout=30 -rss_limit_mb=4096 -print_final_stats=1 "${seed_arg[@]}" \
    -dict=tests/fuzz/marrowfield.dict -artifact_prefix="$build/artifacts/$t-" \
    "$build/corpus/$t" "tests/fuzz/corpus/$t" > "$build/$t.log" 2>&1
  rc=$?
  grep -E "^INFO: Seed:|^#[0-9]+[[:space:]]+(INITED|DONE)|^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb)" "$build/$t.log"
  if [ $rc -ne 0 ]; then
    echo "fuzz: $t stopped with exit code $rc (whole output in $build/$t.log)"
    failed+=("$t")
    found+=("$t")
  fi
done

# Told last, where the tail of a log shows it.
for t in "${found[@]}"; do
  report "$t" "$build/$t.log"
done
if [ ${#failed[@]} -ne 0 ]; then
  echo "fuzz: found something in ${failed[*]} (inputs in $build/artifacts, output in $build/<target>.log)"
fi
echo "fuzz: $((${#targets[@]} - ${#failed[@]})) passed, ${#failed[@]} failed"
[ ${#failed[@]} -eq 0 ]
