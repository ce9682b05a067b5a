# Two commands do all set-up: `make run` and `make test`.
BUILD ?= build
JOBS ?= $(shell nproc)
# ccache speeds up rebuilds where it is installed; the build does not need it.
LAUNCHER := $(if $(shell command -v ccache),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

.PHONY: all deps configure build run test bench clean fuzz fuzz-deps sanitize

all: build

deps:
	./scripts/setup-deps.sh

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release $(LAUNCHER)

build: configure
	cmake --build $(BUILD) -j$(JOBS)

run: build
	$(BUILD)/bin/zythara $(ARGS)

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j$(JOBS)

bench: build
	for b in $(BUILD)/bench/*; do echo "== $$b"; $$b; done

# Sanitizers: the whole test suite built with ASan and UBSan in a folder of its own. Their GCC
# runtimes (libasan, libubsan) come with build-essential, which `deps` installs.
SAN_BUILD ?= build-sanitize
sanitize: deps
	cmake -S . -B $(SAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DZY_SANITIZE=ON $(LAUNCHER)
	cmake --build $(SAN_BUILD) -j$(JOBS)
	cd $(SAN_BUILD) && QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 \
	  UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j$(JOBS)

# Fuzzing: each harness of tests/fuzz built with clang's libFuzzer (ASan, UBSan) and run for
# FUZZ_SECONDS, one at a time. New inputs go to $(FUZZ_BUILD)/corpus; the checked-in corpus is
# read only. A failing input is left as $(FUZZ_BUILD)/artifacts/NAME-crash-...: copy it into
# tests/fuzz/corpus/NAME/ once fixed, so that the replay test keeps it.
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 60
FUZZ_NAMES = $(patsubst tests/fuzz/fuzz_%.cpp,%,$(wildcard tests/fuzz/fuzz_*.cpp))
fuzz-deps: deps
	@command -v clang++ >/dev/null && [ -n "$$(ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a 2>/dev/null)" ] || \
	  { run="env DEBIAN_FRONTEND=noninteractive"; [ "$$(id -u)" -ne 0 ] && run="sudo $$run"; \
	    $$run apt-get update -qq && $$run apt-get install -y -qq --no-install-recommends clang; }
fuzz: fuzz-deps
	cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DZY_FUZZ=ON $(LAUNCHER)
	cmake --build $(FUZZ_BUILD) -j$(JOBS) --target $(addprefix fuzz_,$(FUZZ_NAMES))
	@mkdir -p $(FUZZ_BUILD)/artifacts
	@set -e; for n in $(FUZZ_NAMES); do \
	  echo "== fuzz_$$n for $(FUZZ_SECONDS) s"; mkdir -p $(FUZZ_BUILD)/corpus/$$n; \
	  $(FUZZ_BUILD)/fuzz/fuzz_$$n -max_total_time=$(FUZZ_SECONDS) -timeout=5 -rss_limit_mb=2048 \
	    -artifact_prefix=$(FUZZ_BUILD)/artifacts/$$n- $(FUZZ_BUILD)/corpus/$$n tests/fuzz/corpus/$$n; \
	done

clean:
	rm -rf $(BUILD)
