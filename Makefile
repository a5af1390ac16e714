# The short words for what people do here. Each installs what is missing, builds, and does its job.

.PHONY: run test clean

run:
	@scripts/install-packages build
	@scripts/run

test:
	@scripts/install-packages build test
	@scripts/test release

clean:
	rm -rf build
