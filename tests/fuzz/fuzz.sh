#!/bin/bash
# fuzz.sh FOLDER TARGET SECONDS: lets the fuzzer of a target, in the folder of the fuzzers, make inputs for so long, or up to
# TAGWRIGHTER_FUZZ_INPUTS of them; with TAGWRIGHTER_FUZZ_SEED it goes the same way each time. It begins with the seeds and with what it found before: that stands in found/TARGET/
# beside the fuzzers, fails until it is fixed, and then goes into seeds/TARGET/.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
fuzzers=$1 target=$2 seconds=$3

if [[ ! -x $fuzzers/fuzz_$target ]]; then
    echo "SKIPPED: there is no $fuzzers/fuzz_$target; ./dev fuzz builds it with clang." >&2
    exit 4
fi

inputs=$fuzzers/inputs/$target
found=$fuzzers/found/$target
mkdir -p "$inputs" "$found"
export ASAN_OPTIONS=allocator_may_return_null=1
export LSAN_OPTIONS=suppressions=$here/../leaks.txt:print_suppressions=0
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=UTC
exec "$fuzzers/fuzz_$target" -max_total_time="$seconds" ${TAGWRIGHTER_FUZZ_SEED:+-seed="$TAGWRIGHTER_FUZZ_SEED"} ${TAGWRIGHTER_FUZZ_INPUTS:+-runs="$TAGWRIGHTER_FUZZ_INPUTS"} \
    -timeout=10 -rss_limit_mb=2048 -error_exitcode=1 -print_final_stats=1 -artifact_prefix="$found/" \
    "$inputs" "$here/seeds/$target" "$found"
