#!/usr/bin/env bash
# usage: record_example_test.sh FOLDER_OF_THE_PROGRAMS FOLDER_OF_THE_EXAMPLE
# The example's host and translator with a recorder between them, and replays to the host. Whatever is killed, the
# capture can be read and no shared memory stays. VRX_KILLS: how often, 10 unless told; VRX_SEED: of their moments.
set -euo pipefail

programs=$1
vise=$2/data/bench_vise.step
host=$programs/cad_host
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# The host takes the name of a program only. The scripts tell their process ids, which the programs keep.
cat >"$scratch/translator" <<END
#!/bin/sh
ulimit -S -f unlimited
echo \$\$ >"$scratch/translator.pid"
exec "$programs/cad_translator"
END
cat >"$scratch/recorder" <<END
#!/bin/sh
echo \$\$ >"$scratch/recorder.pid"
exec "$programs/vrx" record --force -o "$scratch/capture" -- "$scratch/translator"
END
cat >"$scratch/replayer" <<END
#!/bin/sh
echo \$\$ >"$scratch/recorder.pid"
exec "$programs/vrx" replay "$scratch/capture"
END
chmod +x "$scratch"/{translator,recorder,replayer}

buffers() { find /dev/shm -maxdepth 1 -user "$(id -un)" -regextype posix-extended -regex '.*/[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}' -printf '%f\n' | sort; }

# Other programs make buffers, too: what goes away by itself is none of ours.
buffers >"$scratch/before"
none_is_left() {
    local left
    left=$(comm -13 "$scratch/before" <(buffers))
    for _ in $(seq 100); do
        left=$(comm -12 <(echo "$left") <(buffers))
        [[ -n $left ]] || return 0
        sleep 0.1
    done
    fail "shared memory is left, $1: $left"
}

# One that nobody waits for has ended, too.
has_ended() {
    local process=$1
    for _ in $(seq 100); do
        [[ $(ps -o state= -p "$process") == [!Z]* ]] || return 0
        sleep 0.1
    done
    return 1
}

# Without a command a replay only reads the whole capture.
is_readable() { "$programs/vrx" replay "$scratch/capture" </dev/null; }

# The ids of bodies are addresses in the translator.
import() { "$host" --quiet --bodies --holes --translator "$1" "$vise" 2>"$scratch/err"; }
without_ids() { sed -E 's/ id [0-9]+:/:/'; }

import "$programs/cad_translator" >"$scratch/plain" || fail "an import"
import "$scratch/recorder" >"$scratch/recorded" || fail "an import through the recorder"
cmp <(without_ids <"$scratch/plain") <(without_ids <"$scratch/recorded") || fail "a recorder changes something"
[[ ! -s $scratch/err ]] || fail "the recorder says something: $(cat "$scratch/err")"
import "$scratch/replayer" >"$scratch/replayed" || fail "an import from the replayer"
cmp "$scratch/recorded" "$scratch/replayed" || fail "a replay differs from what was recorded"
none_is_left "after whole imports"

# A capture that was cut is replayed up to there.
size=$(stat -c %s "$scratch/capture")
for part in 5 50 99; do
    cp "$scratch/capture" "$scratch/whole"
    truncate -s $((size * part / 100)) "$scratch/capture"
    result=0
    import "$scratch/replayer" >"$scratch/out" || result=$?
    [[ $result -eq 4 ]] || fail "exit code $result of the host for a cut capture"
    grep -qF "vrx replay: the recording ends here, without an answer" "$scratch/err" || fail "the replayer is silent"
    grep -qF "it exited with code 1" "$scratch/err" || fail "the replayer ends in another way"
    mv "$scratch/whole" "$scratch/capture"
done
none_is_left "after cut captures"

# A disk that is full ends the recording, and not the session.
cat >"$scratch/short_of_room" <<END
#!/bin/sh
ulimit -S -f 200
. "$scratch/recorder"
END
chmod +x "$scratch/short_of_room"
import "$scratch/short_of_room" >"$scratch/recorded" || fail "an import with a full disk"
cmp <(without_ids <"$scratch/plain") <(without_ids <"$scratch/recorded") || fail "a full disk changes something"
grep -qF "vrx record: the recording ends here, the session goes on" "$scratch/err" || fail "a full disk is not told"
is_readable || fail "the capture of a full disk cannot be read"
none_is_left "after a full disk"

# Someone is killed at a random moment. The host, the recorder and the translator all end then.
seed=${VRX_SEED:-$RANDOM}
RANDOM=$seed
kills=${VRX_KILLS:-10}
echo "seed $seed, $kills kills"
for number in $(seq "$kills"); do
    for program in recorder replayer; do
        rm -f "$scratch"/*.pid
        import "$scratch/$program" >"$scratch/out" &
        subshell=$!
        milliseconds=$((RANDOM % 900))
        sleep "$(printf '0.%03d' "$milliseconds")"
        hosting=$(pgrep -P "$subshell" || true)
        recording=$(cat "$scratch/recorder.pid" 2>/dev/null || true)
        translating=$(cat "$scratch/translator.pid" 2>/dev/null || true)
        case $((number % 4)) in
            0) victim=host process=$hosting signal=KILL ;;
            1) victim=translator process=$translating signal=KILL ;;
            2) victim=recorder process=$recording signal=KILL ;;
            3) victim=recorder process=$recording signal=TERM ;;
        esac
        moment="$program, $victim, $signal after $milliseconds ms, seed $seed, kill $number"
        [[ -z $process ]] || kill "-$signal" "$process" 2>/dev/null || true
        wait "$subshell" 2>/dev/null || true
        for process in $hosting $recording $translating; do
            has_ended "$process" || fail "process $process goes on: $moment"
        done
        none_is_left "$moment"
        [[ ! -e $scratch/recorder.pid ]] || is_readable || fail "the capture cannot be read: $moment"
    done
    # What a killed recorder left is replayed in the next round; the rounds of the replayer change nothing.
done
