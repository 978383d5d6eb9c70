#!/bin/bash
# tidy.sh CLANG-TIDY-ARGUMENTS: clang-tidy as the preset "lint" runs it beside each compilation. What the build itself has
# written is passed over: checking the precompiled headers and what moc writes takes longer than checking the program.
set -euo pipefail
for argument in "$@"; do
    if [[ $argument == -- ]]; then break; fi
    if [[ $argument == */build/*.cpp || $argument == */build/*.cxx ]]; then exit 0; fi
done
exec clang-tidy "$@"
