#!/usr/bin/env bash
# A translator that dies in the middle, or a host that is interrupted, leaves no shared memory behind.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# record COMMAND: the recorder is a translator that runs the command and keeps a copy of what it sends.
recorder=$scratch/recorder
record() {
    printf '#!/bin/sh\n%s | tee "%s"\n' "$1" "$scratch/frames" >"$recorder"
    chmod +x "$recorder"
}

# buffers_told_of: the names of the shared memory in the recorded frames, which are UTF-16.
buffers_told_of() {
    tr -d '\000' <"$scratch/frames" | grep -aoE '"(exchange_object_data|shared_acis_buffer_name)": "[0-9a-f-]{36}"' | cut -d'"' -f4
}

none_is_left() {
    local count=0
    for buffer in $(buffers_told_of); do
        [[ ! -e /dev/shm/$buffer ]] || fail "shared memory $buffer is left, $1"
        count=$((count + 1))
    done
    [[ $count -gt 0 ]] || fail "the translator told of no shared memory, $1"
}

dying=$scratch/dying
for object in exc_product_structure exc_block_geometry exc_block_visualization; do
    printf '#!/bin/sh\nexec "%s" %s\n' "${translator}_dying" "$object" >"$dying"
    chmod +x "$dying"
    expect 4 "The translator died: it was ended by signal 9" "$host" --translator "$dying" "$vise"
    record "\"$dying\""
    expect 4 "The translator died" "$host" --translator "$recorder" "$vise"
    none_is_left "killed after $object"
done

record "\"$translator\""
expect 0 "" "$host" --translator "$recorder" "$vise"
none_is_left "after a whole import"
expect 0 "" "$host" --bodies --translator "$recorder" "$vise"
none_is_left "after an import with bodies"

# A translator that hangs, with buffers told of, and a host that is told to end.
record "\"${translator}_dying\" exc_product_structure"
printf 'touch "%s"\nsleep 100\n' "$scratch/hangs" >>"$recorder"
rm -f "$scratch/frames"
"$host" --translator "$recorder" "$vise" >"$scratch/out" 2>"$scratch/err" &
process=$!
for _ in $(seq 300); do
    [[ ! -e $scratch/hangs ]] || break
    sleep 0.1
done
[[ -e $scratch/hangs ]] || fail "the translator never came to its end"
kill -TERM "$process"
result=0
wait "$process" || result=$?
[[ $result -eq 5 ]] || fail "exit code $result instead of 5 after an interrupt"
grep -qF "interrupted" "$scratch/err" || fail "the host does not say that it was interrupted"
none_is_left "interrupted"

# A host that ends the import since it can't load an object. What comes after that one is on the pipe by then.
cat >"$recorder" <<END
#!/bin/sh
tee "$scratch/command" | "$translator"
END
"$host" --quiet --translator "$recorder" "$vise" >"$scratch/out"
cat >"$recorder" <<END
#!/bin/bash
"$translator" <"$scratch/command" >"$scratch/frames"
$(declare -f buffers_told_of)
scratch=$scratch
rm "/dev/shm/\$(buffers_told_of | head -n 1)"
cat "$scratch/frames"
cat >/dev/null # the host's commands
END
expect 4 "What the translator sent can not be loaded" "$host" --translator "$recorder" "$vise"
none_is_left "after an object that can not be loaded"

# A host that is gone while the translator still sends: the translator removes what it has told of.
cat >"$recorder" <<END
#!/bin/sh
tee "$scratch/command" | "$translator"
END
"$host" --quiet --translator "$recorder" "$vise" >"$scratch/out"
"$translator" <"$scratch/command" 2>"$scratch/err" | head -c 15000 >"$scratch/frames" || true
none_is_left "after the host"
