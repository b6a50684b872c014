# seisplot: the two commands that work on a fresh machine.
#   make run   installs what is missing, builds, and runs the main job
#   make test  installs what is missing, builds, and runs every test
PRESET ?= default
BUILD := build/$(PRESET)
JOBS ?= 2
# Warnings as errors: given on every configure, never remembered from an earlier one.
WERROR ?= OFF

.PHONY: all deps configure build run studio test asan-test core-test bench fuzz-smoke format \
	format-check clean

all: build

deps:
	@bash scripts/install-deps.sh

configure: deps
	@cmake --preset $(PRESET) -DSEISPLOT_WERROR=$(WERROR) >/dev/null

build: configure
	cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/apps/seisplot/seisplot demo

# The desktop application, on the display in use.
studio: configure
	cmake --build $(BUILD) -j $(JOBS) --target seisplot_studio
	$(BUILD)/apps/studio/seisplot-studio

test: build
	ctest --test-dir $(BUILD) -j $(JOBS) --output-on-failure

asan-test:
	$(MAKE) test PRESET=asan

# The compute core alone, configured afresh with Qt hidden from CMake.
core-test:
	rm -rf build/core
	$(MAKE) test PRESET=core

bench:
	$(MAKE) build PRESET=release
	@for b in build/release/bench/bench_*; do [ -x "$$b" ] && "$$b"; done; true

# Builds the fuzz preset and runs each libFuzzer target for FUZZ_TIME seconds on a copy of its
# seed corpus in build/fuzz/corpus (the committed corpus in fuzz/corpus is never written).
# A crash leaves its input in build/fuzz/artifacts and fails the target.
FUZZ_TARGETS := fuzz_read_asc fuzz_read_txtplt fuzz_read_acc fuzz_read_spc fuzz_read_modes \
	fuzz_read_font fuzz_read_curves fuzz_formula
FUZZ_TIME ?= 10

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

format-check: deps
	git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

clean:
	rm -rf build
