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

# The libFuzzer targets (clang, address and undefined sanitizers), each run
# for FUZZ_SECONDS from the seed corpus in the tree, with the format's
# dictionary. New inputs go to a scratch corpus in the build folder, crashes
# to $(FUZZ_BUILD)/artifacts; any crash fails the run.
FUZZ_TARGETS := fuzz_scenario_reader fuzz_load_and_play fuzz_json_import fuzz_content_compiler fuzz_script_runner

$(FUZZ_BUILD)/CMakeCache.txt:
	CXX=clang++ CC=clang cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMF_FUZZ=ON \
	  -DMF_BUILD_APP=OFF -DMF_BUILD_BENCH=OFF -DMF_WERROR=OFF

fuzz-build:
	@bash scripts/install-deps.sh --fuzz
	$(MAKE) $(FUZZ_BUILD)/CMakeCache.txt
	cmake --build $(FUZZ_BUILD) -j$(JOBS) --target fuzz_targets

fuzz: fuzz-build
	@mkdir -p $(FUZZ_BUILD)/artifacts
	@status=0; for t in $(FUZZ_TARGETS); do \
	  mkdir -p $(FUZZ_BUILD)/corpus/$$t; \
	  echo "fuzz: $$t for $(FUZZ_SECONDS) s"; \
	  ./$(FUZZ_BUILD)/bin/$$t -max_total_time=$(FUZZ_SECONDS) -timeout=30 -rss_limit_mb=4096 \
	    -max_len=1048576 -print_final_stats=1 -dict=tests/fuzz/marrowfield.dict \
	    -artifact_prefix=$(FUZZ_BUILD)/artifacts/$$t- \
	    $(FUZZ_BUILD)/corpus/$$t tests/fuzz/corpus/$$t > $(FUZZ_BUILD)/$$t.log 2>&1 || status=1; \
	  grep -E "^(stat::|#[0-9]+ *DONE|==[0-9]+==ERROR|SUMMARY)" $(FUZZ_BUILD)/$$t.log || tail -20 $(FUZZ_BUILD)/$$t.log; \
	done; \
	if [ $$status -ne 0 ]; then echo "fuzz: a target found a crash (see $(FUZZ_BUILD)/artifacts and the logs)"; exit 1; fi; \
	echo "fuzz: no crash"

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
