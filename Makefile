# The two commands of the README: `make play` and `make test`.
BUILD ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
# Seconds each fuzz target runs in `make fuzz`.
FUZZ_SECONDS ?= 60
JOBS ?= 2

.PHONY: play test deps build build-asan test-asan bench clean fuzz fuzz-build

deps:
	@bash scripts/install-deps.sh

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: deps $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j$(JOBS)

play: build
	./$(BUILD)/bin/marrowfield

$(ASAN_BUILD)/CMakeCache.txt:
	cmake -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DMF_SANITIZE=ON -DMF_BUILD_APP=OFF -DMF_BUILD_BENCH=OFF

build-asan: deps $(ASAN_BUILD)/CMakeCache.txt
	cmake --build $(ASAN_BUILD) -j$(JOBS)

# Every test, then the core tests again under the address and
# undefined-behaviour sanitizers.
test: build build-asan
	cd $(BUILD) && ctest --output-on-failure -j$(JOBS)
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j$(JOBS)

bench: build
	./$(BUILD)/bin/mfbench

# The libFuzzer targets (clang, address and undefined sanitizers, undefined
# behaviour fatal) in their own build folder, each run for FUZZ_SECONDS from
# the seed corpus in the tree with the format's dictionary (tests/fuzz/run.sh).
# Anything found fails the run.
CCACHE := $(shell command -v ccache 2>/dev/null)
# All targets, or some: make fuzz FUZZ_TARGETS="fuzz_json_import fuzz_script_runner"
FUZZ_TARGETS ?=
# libFuzzer's seed: empty for a new one each run (told in the output), a
# number to run again as a logged run went (CI gives 1).
FUZZ_SEED ?=

$(FUZZ_BUILD)/CMakeCache.txt:
	CXX=clang++ CC=clang cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMF_FUZZ=ON \
	  -DMF_BUILD_APP=OFF -DMF_BUILD_BENCH=OFF -DMF_WERROR=OFF $(if $(CCACHE),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

fuzz-build:
	@bash scripts/install-deps.sh --fuzz
	$(MAKE) $(FUZZ_BUILD)/CMakeCache.txt
	cmake --build $(FUZZ_BUILD) -j$(JOBS) --target fuzz_targets

fuzz: fuzz-build
	FUZZ_SEED=$(FUZZ_SEED) bash tests/fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS) $(FUZZ_TARGETS)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
