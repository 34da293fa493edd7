# SPDX-License-Identifier: MIT
# The README's commands. Everything builds into build/ with CMake.
BUILD_DIR ?= build
JOBS ?= 2
CMAKE_FLAGS ?=
# CI treats warnings as errors; a developer build may relax it with WERROR=OFF.
WERROR ?= ON
# How long `make fuzz` runs each fuzz target, in seconds.
FUZZ_SECONDS ?= 60

# Every build (plain, sanitizer, fuzz) compiles through ccache when it is
# installed (CMakeLists.txt). Paths below the checkout are hashed relative to it,
# so a fresh clone anywhere reuses what an earlier one compiled.
export CCACHE_BASEDIR ?= $(CURDIR)
export CCACHE_NOHASHDIR ?= true

.PHONY: all deps deps-fuzz configure build test test-xcb bench demo asan tsan fuzz clean format format-check test-whole lint

all: build

deps:
	bash scripts/install-deps.sh

deps-fuzz:
	bash scripts/install-deps.sh --fuzz

configure: deps
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_WARNINGS_AS_ERRORS=$(WERROR) $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD_DIR) -j$(JOBS)

# Every test offscreen, then the widget tests again on a real X server (label
# xcb: Xvfb with openbox, one server per case, see scripts/run-on-x-server.sh).
test: build
	cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j$(JOBS) -LE xcb
	cd $(BUILD_DIR) && ctest --output-on-failure -j$(JOBS) -L xcb

# The real-display lane alone.
test-xcb: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j$(JOBS) -L xcb

# Every test program run whole, all cases in one process (ctest runs one per process).
test-whole: build
	bash scripts/run-test-programs.sh $(BUILD_DIR)

bench: build
	bash scripts/run-benchmarks.sh $(BUILD_DIR)

demo: build
	bash scripts/run-demo.sh $(BUILD_DIR)

# The sanitizer builds run the whole test suite except the "package" and
# "encode" labels. The package label's host test builds a program against the
# installed libraries with the plain compiler, and a program without the
# sanitizer runtime cannot load libraries built with it ("ASan runtime does not
# come first in initial library list"); its other two only compile the installed
# headers and compare the guide's text with its example. The encode label runs
# FFmpeg on every preset of the catalogue: most of its time is spent in FFmpeg,
# which is not instrumented, and the arguments our code builds for it are
# checked by the mediaformat tests. `make test` runs both labels. The xcb label
# runs the widget tests a second time on a real X server; the offscreen run
# already puts the same code under the sanitizer.
SANITIZER_CTEST = QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j$(JOBS) -LE 'package|encode|xcb'

# AddressSanitizer, LeakSanitizer and UBSan; any report fails the test it came
# from. The options are set for the build as well, because the build runs every
# test program once to list its tests. lsan.supp silences third-party leaks only.
ASAN_ENV = ASAN_OPTIONS=detect_leaks=1:halt_on_error=1 \
	UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	LSAN_OPTIONS=suppressions=$(CURDIR)/tests/sanitizers/lsan.supp

asan: deps
	cmake -S . -B $(BUILD_DIR)-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_WARNINGS_AS_ERRORS=$(WERROR) \
		-DLMFP_SANITIZE=address,undefined -DCMAKE_CXX_FLAGS=-fno-sanitize-recover=undefined \
		-DLMFP_BUILD_BENCHMARKS=OFF $(CMAKE_FLAGS)
	$(ASAN_ENV) cmake --build $(BUILD_DIR)-asan -j$(JOBS)
	cd $(BUILD_DIR)-asan && $(ASAN_ENV) $(SANITIZER_CTEST)

# ThreadSanitizer. Qt is not built with it, so TSan cannot see the locking inside
# Qt, and its thread pool (image conversion when icons are drawn) shows up as
# races between Qt's own frames, seen only through the allocator, memmove and
# pthread calls Qt makes. ignore_noninstrumented_modules leaves those calls of
# uninstrumented libraries unchecked (they still synchronize); every access
# our own code makes is still checked.
TSAN_ENV = TSAN_OPTIONS=halt_on_error=1:ignore_noninstrumented_modules=1

tsan: deps
	cmake -S . -B $(BUILD_DIR)-tsan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_WARNINGS_AS_ERRORS=$(WERROR) \
		-DLMFP_SANITIZE=thread -DLMFP_BUILD_BENCHMARKS=OFF $(CMAKE_FLAGS)
	$(TSAN_ENV) cmake --build $(BUILD_DIR)-tsan -j$(JOBS)
	cd $(BUILD_DIR)-tsan && $(TSAN_ENV) $(SANITIZER_CTEST)

# libFuzzer targets (fuzz/) with clang, ASan and UBSan. Only the targets and the
# three libraries they drive are built: no tests, benchmarks or widgets.
fuzz: deps deps-fuzz
	cmake -S . -B $(BUILD_DIR)-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLMFP_WARNINGS_AS_ERRORS=$(WERROR) \
		-DCMAKE_CXX_COMPILER=clang++ -DLMFP_FUZZ=ON -DBUILD_SHARED_LIBS=OFF \
		-DLMFP_BUILD_TESTS=OFF -DLMFP_BUILD_BENCHMARKS=OFF $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR)-fuzz -j$(JOBS) --target lmfp_fuzzers
	bash scripts/run-fuzzers.sh $(BUILD_DIR)-fuzz $(FUZZ_SECONDS)

clean:
	rm -rf $(BUILD_DIR) $(BUILD_DIR)-asan $(BUILD_DIR)-tsan $(BUILD_DIR)-fuzz

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

# Fails, naming the places, when a file is not as `make format` leaves it.
format-check: deps
	git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror

# clang-tidy with the checks of .clang-tidy, every finding an error. It reads the
# build's compile commands and the headers moc and uic generate, so it builds first.
lint: build
	JOBS=$(JOBS) bash scripts/run-clang-tidy.sh $(BUILD_DIR)
