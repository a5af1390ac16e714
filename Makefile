# The short words for what people do here. Each installs what is missing, builds, and does its job.

.PHONY: run test bench package clean

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

clean:
	rm -rf build
