# The README's commands. Everything builds into build/ with CMake.
BUILD_DIR ?= build
JOBS ?= 2
CMAKE_FLAGS ?=
# CI treats warnings as errors; a developer build may relax it with WERROR=OFF.
WERROR ?= ON

.PHONY: all deps configure build test bench demo tsan clean format

all: build

deps:
	bash scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_WARNINGS_AS_ERRORS=$(WERROR) $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD_DIR) -j$(JOBS)

test: build
	cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j$(JOBS)

bench: build
	bash scripts/run-benchmarks.sh $(BUILD_DIR)

demo: build
	bash scripts/run-demo.sh $(BUILD_DIR)

tsan: deps
	cmake -S . -B $(BUILD_DIR)-tsan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_SANITIZE=thread -DLMFP_BUILD_BENCHMARKS=OFF $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR)-tsan -j$(JOBS) --target lmfp_core_tests
	cd $(BUILD_DIR)-tsan && TSAN_OPTIONS=halt_on_error=1 ctest --output-on-failure -L core

clean:
	rm -rf $(BUILD_DIR) $(BUILD_DIR)-tsan

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i
