# The short words for what people do here. Each installs what is missing, builds, and does its job.

.PHONY: run test bench clean

run:
	@scripts/install-packages build
	@scripts/run

test:
	@scripts/install-packages build test
	@scripts/test release

bench:
	@scripts/install-packages build bench
	@scripts/bench

clean:
	rm -rf build
