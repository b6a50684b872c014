# seisplot: the two commands that work on a fresh machine.
#   make run   installs what is missing, builds, and runs the main job
#   make test  installs what is missing, builds, and runs every test
PRESET ?= default
BUILD := build/$(PRESET)
JOBS ?= 2

.PHONY: all deps configure build run test asan-test bench format clean

all: build

deps:
	@bash scripts/install-deps.sh

$(BUILD)/build.ninja: | deps
	cmake --preset $(PRESET)

configure: $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/apps/seisplot/seisplot

test: build
	ctest --test-dir $(BUILD) -j $(JOBS) --output-on-failure

asan-test:
	$(MAKE) test PRESET=asan

bench:
	$(MAKE) build PRESET=release
	@for b in build/release/bench/bench_*; do [ -x "$$b" ] && "$$b"; done; true

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf build
