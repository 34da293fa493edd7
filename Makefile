# The README's commands. Everything builds into build/ with CMake.
BUILD_DIR ?= build
JOBS ?= 2
CMAKE_FLAGS ?=
# CI treats warnings as errors; a developer build may relax it with WERROR=OFF.
WERROR ?= ON
# How long `make fuzz` runs each fuzz target, in seconds.
FUZZ_SECONDS ?= 60

.PHONY: all deps deps-fuzz configure build test bench demo tsan fuzz clean format

all: build

deps:
	bash scripts/install-deps.sh

deps-fuzz:
	bash scripts/install-deps.sh --fuzz

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

# libFuzzer targets (fuzz/) with clang, ASan and UBSan. Only the targets and the
# three libraries they drive are built: no tests, benchmarks or widgets.
fuzz: deps deps-fuzz
	cmake -S . -B $(BUILD_DIR)-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_WARNINGS_AS_ERRORS=$(WERROR) \
		-DCMAKE_CXX_COMPILER=clang++ -DLMFP_FUZZ=ON -DBUILD_SHARED_LIBS=OFF \
		-DLMFP_BUILD_TESTS=OFF -DLMFP_BUILD_BENCHMARKS=OFF $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR)-fuzz -j$(JOBS) --target lmfp_fuzzers
	bash scripts/run-fuzzers.sh $(BUILD_DIR)-fuzz $(FUZZ_SECONDS)

clean:
	rm -rf $(BUILD_DIR) $(BUILD_DIR)-tsan $(BUILD_DIR)-fuzz

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i
