# The two commands of the README are `make run` and `make test`; the others are for developers.
BUILD_DIR   ?= build
BUILD_TYPE  ?= RelWithDebInfo
CMAKE_FLAGS ?=
JOBS        ?= 2
PREFIX      ?= /usr/local
# Builds take a lock so that several checkouts or agents never compile at once on a small machine.
LOCK        := flock /tmp/recview-build.lock
# ccache, when present, lets several checkouts share their compiled objects.
CCACHE      := $(shell command -v ccache 2>/dev/null)
export CCACHE_BASEDIR := $(CURDIR)

.PHONY: run test test-asan bench fuzz deps configure build install package

deps:
	@scripts/install-deps

configure: deps
	@cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) \
	  $(if $(CCACHE),-DCMAKE_CXX_COMPILER_LAUNCHER=$(CCACHE)) $(CMAKE_FLAGS) > /dev/null

build: configure
	@$(LOCK) cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	$(BUILD_DIR)/recview $(BUILD_DIR)/samples/*.vxf

test: build
	@cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# Installs into PREFIX (DESTDIR is honoured) and tells the desktop about the new file types.
install: build
	@cmake --install $(BUILD_DIR) --prefix $(PREFIX)
	@if [ -z "$(DESTDIR)" ]; then \
	  update-mime-database $(PREFIX)/share/mime; \
	  update-desktop-database -q $(PREFIX)/share/applications; \
	  gtk-update-icon-cache -q -t $(PREFIX)/share/icons/hicolor 2>/dev/null || true; \
	fi

# The Debian package, in $(BUILD_DIR)/.
package: build
	@$(LOCK) cmake --build $(BUILD_DIR) --target package

test-asan:
	@$(MAKE) --no-print-directory test BUILD_DIR=build-asan BUILD_TYPE=Debug CMAKE_FLAGS="-DRECVIEW_SANITIZE=ON"

bench:
	@$(MAKE) --no-print-directory build BUILD_DIR=build-release BUILD_TYPE=Release
	@bench/run build-release

fuzz: deps
	@cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=Debug -DRECVIEW_FUZZ=ON \
	  -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_C_COMPILER=clang > /dev/null
	@$(LOCK) cmake --build build-fuzz -j $(JOBS) --target fuzzers
	@scripts/run-fuzz build-fuzz
