# Two commands do all set-up: `make run` and `make test`.
BUILD ?= build
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench clean

all: build

deps:
	./scripts/setup-deps.sh

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

build: configure
	cmake --build $(BUILD) -j$(JOBS)

run: build
	$(BUILD)/bin/zythara $(ARGS)

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j$(JOBS)

bench: build
	for b in $(BUILD)/bench/*; do echo "== $$b"; $$b; done

clean:
	rm -rf $(BUILD)
