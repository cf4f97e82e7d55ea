#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the libFuzzer targets of fuzz/ with clang, AddressSanitizer and
# UndefinedBehaviorSanitizer (the core too), and runs each from its seed
# corpus of real files for RUNS inputs (1 000 000 by default) or, with
# SECONDS set, for that long. A crash, a leak or undefined behaviour stops
# the run and leaves the input in build-fuzz/crashes/. Prints one line a
# target: inputs run, time, and the corpus it grew. TARGETS="a b" runs only
# those, so two shells can share the machine's cores.
set -euo pipefail
cd "$(dirname "$0")/.."
targets=(${TARGETS:-config_reader dropped_file user_file_name friend_phrase libre_values progress_reader theme_file})
runs="${RUNS:-1000000}"
build_dir="${QUILLORA_FUZZ_BUILD:-build-fuzz}"
lock="${QUILLORA_BUILD_LOCK:-/tmp/quillora-build.lock}"
if ! command -v clang++-14 >/dev/null; then
    sudo_cmd=(); [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends clang-14 >/dev/null
fi
CC=clang-14 CXX=clang++-14 cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DQUILLORA_BUILD_TESTS=OFF -DQUILLORA_BUILD_TOOLS=OFF -DQUILLORA_BUILD_FUZZERS=ON \
    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined" \
    >/dev/null
flock "$lock" cmake --build "$build_dir" --target "${targets[@]/#/fuzz_}" >/dev/null
mkdir -p "$build_dir/crashes"
for target in "${targets[@]}"; do
    corpus="$build_dir/corpus/$target"
    mkdir -p "$corpus"
    cp -n fuzz/corpus/"$target"/* "$corpus"/ 2>/dev/null || true
    limit=(-runs="$runs")
    [ -n "${SECONDS_EACH:-}" ] && limit=(-max_total_time="$SECONDS_EACH")
    start=$(date +%s)
    UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
        "$build_dir/fuzz/fuzz_$target" "${limit[@]}" -max_len=4096 \
        -artifact_prefix="$build_dir/crashes/$target-" "$corpus" >"$build_dir/$target.log" 2>&1 || {
        echo "$target: FAILED, see $build_dir/$target.log" >&2
        tail -30 "$build_dir/$target.log" >&2
        exit 1
    }
    done_line=$(grep -E '^Done [0-9]+ runs' "$build_dir/$target.log" | tail -n 1)
    echo "$target: ${done_line:-no summary} (wall $(($(date +%s) - start)) s, corpus $(ls "$corpus" | wc -l) files)"
done
