#!/usr/bin/env bash
# usage: farm_test.sh BUILD_FOLDER
# A scheduler and three workers on this machine, one of which is killed while it has a job: each file has a whole
# capture or a line in the table, and nothing else is left.
set -euo pipefail

programs=$(realpath "$1")/bin
farm=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
example=$farm/../cad_import
scratch=$(mktemp -d)
captures=$scratch/captures
old=$(cat /proc/sys/kernel/random/uuid)
young=$(cat /proc/sys/kernel/random/uuid)
services=()

finish() {
    kill -KILL "${services[@]}" 2>/dev/null || true
    rm -rf "$scratch" "/dev/shm/$old" "/dev/shm/$young"
}
trap finish EXIT

fail() {
    tail -n 50 "$scratch"/*.log >&2 || true
    echo "FAILED: $*" >&2
    exit 1
}

import_farm() { timeout -k 1 40 /usr/bin/python3 "$farm/import_farm.py" --programs "$programs" "$@"; }

# expect CODE TEXT ARGUMENT...: the farm ends with the code and says the text.
expect() {
    local code=$1 text=$2 result=0
    shift 2
    import_farm "$@" >"$scratch/farm.log" 2>&1 || result=$?
    [[ $result -eq $code ]] || fail "exit code $result instead of $code: $*"
    grep -qF -- "$text" "$scratch/farm.log" || fail "no \"$text\" said by: $*"
}

buffers() { "$programs/vrx" list --json | sed -nE 's/.*"name": "([^"]+)".*/\1/p' | sort; }

# Other programs make buffers, too: what goes away by itself is none of ours.
nothing_is_left() {
    local buffers processes
    for _ in $(seq 100); do
        buffers=$(comm -13 "$scratch/before" <(buffers))
        processes=$(pgrep -af -- "$captures|$scratch/host" || true)
        [[ -n $buffers$processes ]] || break
        sleep 0.1
    done
    [[ -z $buffers$processes ]] || fail "left, $1: $buffers $processes"
    [[ -z $(find "$captures" -name '*.part') ]] || fail "unfinished captures are left, $1"
}

# The worker above a process.
worker_of() {
    local process=$1 worker
    while [[ $process -gt 1 ]]; do
        for worker in "${workers[@]}"; do
            [[ $process -ne $worker ]] || { echo "$worker"; return 0; }
        done
        process=$(ps -o ppid= -p "$process") || return 1
    done
    return 1
}

is_recording() { [[ $(ps -o state=,args= -p "$1") == [!Z]*"vrx record"* ]]; }

files=$scratch/files
mkdir -p "$files"/{a,b,"größe und maß"} "$scratch/empty" "$scratch/work"
for name in a/vise1 a/vise2 a/vise3 b/vise1 b/vise2 "größe und maß/vise 1" "größe und maß/vise 2" vise1; do
    cp "$example/data/bench_vise.step" "$files/$name.step"
done
cp "$example"/tests/*.step "$files"
head -c 300000 "$example/data/bench_vise.step" >"$files/b/broken.STP"
ln -s nowhere "$files/gone.step"
echo "no CAD file" >"$files/readme.txt"
(cd "$files" && find . ! -type d ! -name readme.txt -printf '%P\n' | sort) >"$scratch/names"

buffers >"$scratch/before"
echo "of a killed job" | tee "/dev/shm/$young" >"/dev/shm/$old"
touch -d "2 hours ago" "/dev/shm/$old"
sort -o "$scratch/before" - "$scratch/before" <<<"$young"

export DASK_DISTRIBUTED__SCHEDULER__WORKER_SATURATION=1.0
cd "$scratch/work"
dask scheduler --host 127.0.0.1 --port 0 --no-dashboard --scheduler-file "$scratch/scheduler.json" \
    >"$scratch/scheduler.log" 2>&1 &
services+=($!)
workers=()
for number in 1 2 3; do
    dask worker --scheduler-file "$scratch/scheduler.json" --host 127.0.0.1 --nthreads 1 --no-nanny --no-dashboard \
        --local-directory "$scratch/work" >"$scratch/worker$number.log" 2>&1 &
    services+=($!)
    workers+=($!)
done
# Bash is not to tell that they are killed.
disown "${services[@]}"
for _ in $(seq 200); do
    [[ ! -s $scratch/scheduler.json ]] || break
    sleep 0.1
done
address=$(grep -oE 'tcp://127\.0\.0\.1:[0-9]+' "$scratch/scheduler.json" | head -n 1) || fail "there is no scheduler"
for _ in $(seq 200); do
    [[ $(grep -lF "Registered to" "$scratch"/worker?.log | wc -l) -lt 3 ]] || break
    sleep 0.1
done

# The worker stands still before it is killed, so that the job that records then cannot have ended for Dask.
import_farm --scheduler "$address" "$files" "$captures" >"$scratch/killed.log" 2>&1 &
run=$!
victim=
for _ in $(seq 1000); do
    recorder=$(pgrep -n -f -- "vrx record --force -o $captures" || true)
    if [[ -n $recorder ]] && worker=$(worker_of "$recorder") && is_recording "$recorder"; then
        kill -STOP "$worker"
        if is_recording "$recorder"; then
            victim=$worker
            kill -KILL "$worker"
            break
        fi
        kill -CONT "$worker"
    fi
    sleep 0.02
done
[[ -n $victim ]] || fail "no worker was seen at its job"
result=0
wait "$run" || result=$?
[[ $result -eq 1 ]] || fail "exit code $result instead of 1"
grep -qE "worker tcp://[0-9.:]+ is gone" "$scratch/killed.log" || fail "nobody tells of the dead worker"
nothing_is_left "after the run"
[[ ! -e /dev/shm/$old ]] || fail "what an earlier job has left is still there"
[[ -e /dev/shm/$young ]] || fail "what a living job may have made was removed"

# Each file has a whole capture or a line, and none has both.
table=$captures/failures.csv
failed=$(grep -cE '^(b/broken.STP,exit code 1,1,2|gone.step,.*No such file.*,,2),' "$table" || true)
[[ $failed -eq 2 && $(grep -cE '^[^,"]+,' "$table") -eq 3 ]] || fail "$(cat "$table")"
grep -qF "is cut off: its end, END-ISO-10303-21, is missing" "$table" || fail "no text of the translator"
while read -r name; do
    case $name in b/broken.STP | gone.step) continue ;; esac
    "$programs/vrx" show --summary "$captures/$name.vrxcap" >"$scratch/shown" 2>"$scratch/shown.log" || fail "$name"
    [[ ! -s $scratch/shown.log ]] || fail "$name: $(cat "$scratch/shown.log")"
    tail -n 1 "$scratch/shown" | grep -qF "from the translator: result" || fail "$name has no answer at its end"
done <"$scratch/names"
(cd "$captures" && find . -name '*.vrxcap' -printf '%P\n' | sed 's/\.vrxcap$//' | sort) >"$scratch/imported"
comm -3 "$scratch/names" "$scratch/imported" | cmp - <(printf 'b/broken.STP\ngone.step\n') || fail "other captures"

# A second run does what is left, and what has changed since.
touch "$files/cart.step"
expect 1 "1 imported, $(($(wc -l <"$scratch/names") - 3)) done before, 2 failed" \
    --scheduler "$address" "$files" "$captures"
rm "$files"/*.step "$files/b/broken.STP"
expect 0 "0 imported, 7 done before, 0 failed" --scheduler "$address" "$files" "$captures"
[[ $(wc -l <"$table") -eq 1 ]] || fail "the table keeps old lines"

# Without workers a run ends, and what they were at ends with them.
rm -r "$files/a" "$files/größe und maß" "$files/b/vise2.step"
vise=$captures/b/vise1.step.vrxcap
before=$(stat -c %Y.%i "$vise")
(
    for _ in $(seq 500); do
        ! pgrep -f -- "vrx record --force -o $captures" >/dev/null || break
        sleep 0.02
    done
    kill -KILL "${services[@]:1}" 2>/dev/null
) &
expect 1 "1 files are given up: there was no worker any more" --scheduler "$address" --patience 2 --again \
    --translator "sleep 50" "$files" "$captures"
nothing_is_left "after the last worker"
expect 3 "no worker at $address" --scheduler "$address" --patience 1 --again "$files" "$captures"

# Workers of its own, with a translator that hangs, one that kills the recorder, a host that kills its worker, and
# a disk that is full for the recorder only.
expect 1 "not done in 1 s" --again --workers 1 --time-limit 1 --retries 0 --translator "sleep 50" "$files" "$captures"
# shellcheck disable=SC2016 # they are for the scripts
printf '#!/bin/sh\nkill -KILL $PPID\n' >"$scratch/translator"
# shellcheck disable=SC2016
printf '#!/bin/sh\nkill -KILL $(ps -o ppid= -p $PPID)\nsleep 50\n' >"$scratch/host"
printf '#!/bin/sh\nulimit -S -f 200\nexec "%s/cad_reader" "$@"\n' "$programs" >"$scratch/short_of_room"
printf '#!/bin/sh\nulimit -S -f unlimited\nexec "%s/cad_translator"\n' "$programs" >"$scratch/with_room"
chmod +x "$scratch"/{translator,host,short_of_room,with_room}
expect 1 "b/vise1.step  exit code 1  1 " --again --workers 1 --retries 0 --translator "$scratch/translator" "$files" \
    "$captures"
expect 1 "2 workers died while they had it" --again --workers 1 --worker-deaths 1 --host "$scratch/host" "$files" \
    "$captures"
expect 1 "the capture is not whole" --again --workers 1 --retries 0 --host "$scratch/short_of_room" \
    --translator "$scratch/with_room" "$files" "$captures"
[[ $(stat -c %Y.%i "$vise") == "$before" ]] || fail "a failure has touched a good capture"
expect 0 "1 imported, 0 done before, 0 failed" --again --workers 1 "$files" "$captures"
[[ $(stat -c %Y.%i "$vise") != "$before" ]] || fail "nothing was imported again"
nothing_is_left "at the end"

expect 2 "usage: import_farm.py" "$files"
expect 2 "too small" --workers 0 "$files" "$captures"
expect 3 "no file in $scratch/empty" "$scratch/empty" "$captures"
expect 3 "there is no program no_such_program" --workers 1 --again --host no_such_program "$files" "$captures"
