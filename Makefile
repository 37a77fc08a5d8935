# The two commands of the README: `make play` and `make test`.
BUILD ?= build
ASAN_BUILD ?= build-asan
JOBS ?= 2

.PHONY: play test deps build build-asan test-asan bench clean

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

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)
