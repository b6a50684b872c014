# seisplot: the two commands that work on a fresh machine.
#   make run   installs what is missing, builds, and runs the main job
#   make test  installs what is missing, builds, and runs every test
PRESET ?= default
BUILD := build/$(PRESET)
JOBS ?= 2

.PHONY: all deps configure build run test asan-test bench fuzz-smoke format clean

all: build

deps:
	@bash scripts/install-deps.sh

$(BUILD)/build.ninja: | deps
	cmake --preset $(PRESET)

configure: $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/apps/seisplot/seisplot demo

test: build
	ctest --test-dir $(BUILD) -j $(JOBS) --output-on-failure

asan-test:
	$(MAKE) test PRESET=asan

bench:
	$(MAKE) build PRESET=release
	@for b in build/release/bench/bench_*; do [ -x "$$b" ] && "$$b"; done; true

# Builds the fuzz preset and runs each libFuzzer target for FUZZ_TIME seconds on a copy of its
# seed corpus in build/fuzz/corpus (the committed corpus in fuzz/corpus is never written).
# A crash leaves its input in build/fuzz/artifacts and fails the target.
FUZZ_TARGETS := fuzz_read_asc fuzz_read_txtplt fuzz_read_acc
FUZZ_TIME ?= 20

fuzz-smoke:
	$(MAKE) configure PRESET=fuzz
	cmake --build build/fuzz -j $(JOBS) --target $(FUZZ_TARGETS)
	@set -e; for t in $(FUZZ_TARGETS); do \
		rm -rf build/fuzz/corpus/$$t; \
		mkdir -p build/fuzz/corpus/$$t build/fuzz/artifacts; \
		cp fuzz/corpus/$$t/* build/fuzz/corpus/$$t/; \
		echo "fuzz-smoke: $$t for $(FUZZ_TIME) s"; \
		build/fuzz/fuzz/$$t -max_total_time=$(FUZZ_TIME) -max_len=4096 -print_final_stats=1 \
			-artifact_prefix=build/fuzz/artifacts/$$t- build/fuzz/corpus/$$t; \
	done

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf build
