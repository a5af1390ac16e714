# The short words for what people do here. Each installs what is missing, builds, and does its job.

.PHONY: run test bench package package-windows clean

run:
	@scripts/install-packages build
	@scripts/run

test:
	@scripts/install-packages build test
	@scripts/test release

bench:
	@scripts/install-packages build bench
	@scripts/bench

package:
	@scripts/install-packages build package
	@scripts/package

package-windows:
	@scripts/install-packages build package-windows
	@scripts/package-windows

clean:
	rm -rf build
