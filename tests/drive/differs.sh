#!/bin/bash
# differs.sh DRIVER SCRIPT: holds if an expectation of the script does not, as the table of the rules of today says.
set -uo pipefail
"$1" "$2"
status=$?
case $status in
    1) exit 0 ;;
    0) echo "$2 plays by the rules of today as it does by the classic ones: take it out of differToday.txt." ;;
    *) echo "The driver ended with $status, and not because an expectation did not hold." ;;
esac
exit 1
