#!/bin/bash
# selftest.sh DRIVER SCRIPT: plays a script that is to end in a certain way, and tells whether it did. The script says the
# way itself, in comments of its own at the start of a line:
#   # exit STATUS     the exit status of the driver
#   # says REGEX      an extended regular expression that some line of its output matches; as many as wanted
set -euo pipefail
driver=$1
script=$2

mapfile -t statuses < <(sed -n 's/^# exit //p' "$script")
mapfile -t sayings < <(sed -n 's/^# says //p' "$script")
if ((${#statuses[@]} != 1 || ${#sayings[@]} == 0)); then
    echo "$script: it has to have one line \"# exit STATUS\" and at least one line \"# says REGEX\"" >&2
    exit 2
fi

status=0
output=$("$driver" "$script" 2>&1 </dev/null) || status=$?

failed=0
if [[ $status != "${statuses[0]}" ]]; then
    echo "$script: the driver was to exit with ${statuses[0]}, but exited with $status"
    failed=1
fi
for saying in "${sayings[@]}"; do
    if ! grep -qE -e "$saying" <<<"$output"; then
        echo "$script: no line of the output matches: $saying"
        failed=1
    fi
done
((failed == 0)) || printf 'The output was:\n%s\n' "$output"
exit "$failed"
