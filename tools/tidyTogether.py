#!/usr/bin/python3
"""tidyTogether.py BUILD [--seconds N] [SOURCE...]: clang-tidy over the whole tree, or over the sources that are named,
as BUILD/compile_commands.json compiles them.

clang-tidy reads every declaration of every header for each source that it is given, and nearly all of its time goes into
those of Qt. So sources are looked at many at a time, included by one that stands for them: a tenth of the time. Sources
that declare the same name at the start of a line never stand together. Where some do not compile together all the same,
they are looked at one by one. Prints the findings, and ends with 1 if there are any. Sources that are named are looked
at in their order; once N seconds have passed, those of which nothing has been looked at yet are named and left out.
"""
import argparse
import collections
import concurrent.futures
import json
import os
import re
import subprocess
import sys
import time

MOST_TOGETHER = 14
HEADERS_AND_SOURCES = r"/(src|tests|bench)/([A-Za-z]+/)*[A-Za-z0-9_]+\.(h|cpp)$"

# What standing together alone brings about. The compiler of every build looks after it in each source by itself.
BROUGHT_ABOUT = ["-Wno-shadow", "-Wno-macro-redefined", "-Wno-unused-function", "-Wno-unused-macros"]

# A declaration that begins at the start of a line: a type, or the name before "(", "=", "{", "[" or ";".
DECLARATION = re.compile(
    r"^(?:template ?<[^>]*> ?)?(?:(?:inline|static|constexpr|const) )*"
    r"(?:(?:struct|class|enum class|enum|using) (?P<type>\w+)"
    r"|TEST(?:_F|_P)?\((?P<suite>\w+), (?P<test>\w+)\)"
    r"|MATCHER(?:_P\d?)?\((?P<matcher>\w+)"
    r"|#define (?P<macro>\w+)"
    r"|[\w:<>,*& \[\]]*?[ *&](?P<other>\w+)\s*[(={\[;])"
)
NOT_DECLARATIONS = (" ", "namespace", "using namespace", "return", "#include", "#pragma", "//", "}")


def names_of(source):
    """The names that would clash if they stood in another source as well."""
    names = set()
    with open(source, encoding="utf-8") as lines:
        for line in lines:
            found = None if line.startswith(NOT_DECLARATIONS) else DECLARATION.match(line)
            if not found:
                continue
            if found["suite"]:
                names.add(f"{found['suite']}.{found['test']}")
            elif found["type"] or "::" not in line.split("(")[0]:  # a member's definition names its class
                names.add(next(name for name in found.groups() if name))
    return names


def flags_of(entry):
    """The compiler's arguments without the files and what is written beside them. Precompiled headers become the text that
    they were made of, so that a source is looked at as it is compiled."""
    words = iter(entry["command"].replace("\\", "").split()[1:])
    flags = []
    for word in words:
        if word in ("-o", "-c", "-MF", "-MT", "-MQ"):
            next(words)
        elif word == "-Xclang":  # -Xclang -include-pch -Xclang FILE, and the same with -include and the text
            kind, _, file = next(words), next(words), next(words)
            if kind == "-include":
                flags.append((kind, file))
        elif word == "-isystem":
            flags.append((word, next(words)))
        elif not word.startswith("-M") and word != entry["file"]:
            flags.append(word)
    return flags


def kind_of(source, flags):
    """Sources of one kind can be compiled with the flags of all of them."""
    return source.split(os.sep)[0], "-DQT_WEBENGINECORE_LIB" in flags


def merged(all_flags):
    """Every flag of these lists once, in their order; of a macro the first value."""
    firsts = {}
    for flag in (flag for flags in all_flags for flag in flags):
        defines = isinstance(flag, str) and flag.startswith("-D")
        firsts.setdefault(flag.split("=")[0] if defines else flag, flag)
    return [word for flag in firsts.values() for word in (flag if isinstance(flag, tuple) else [flag])]


def batches_of(build, named):
    """Pairs of compiler flags and the sources that are looked at together with them, those named or else all."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as database:
        entries = json.load(database)
    kinds = collections.defaultdict(dict)
    for entry in entries:
        source = os.path.relpath(entry["file"])
        if source in named if named else source.startswith(("src/", "tests/", "bench/")):
            flags = flags_of(entry)
            kinds[kind_of(source, flags)][source] = flags
    batches = []
    for sources in kinds.values():
        flags = merged(sorted(sources.values(), key=len, reverse=True))
        begun = []
        for source in sorted(sources, key=named.index if named else lambda one: -os.path.getsize(one)):
            names = names_of(source)
            fitting = [batch for batch in begun if len(batch[0]) < MOST_TOGETHER and not batch[1] & names]
            if fitting:
                smallest = min(fitting, key=lambda batch: len(batch[1]))
                smallest[0].append(source)
                smallest[1].update(names)
            else:
                begun.append(([source], names))
        batches += [(flags, batch[0]) for batch in begun]
    return sorted(batches, key=lambda batch: named.index(batch[1][0])) if named else batches


def look_at(build, number, flags, sources, end, left_out):
    """What clang-tidy prints about these sources; nothing if it has found nothing. Behind the end they are left out."""
    if time.monotonic() >= end:
        left_out.extend(sources)
        return ""
    together = os.path.join(build, "together", f"{number}.cpp")
    with open(together, "w", encoding="utf-8") as file:
        file.writelines(f'#include "{os.path.abspath(source)}" // NOLINT\n' for source in sources)
    command = ["clang-tidy", "--quiet", f"--header-filter={HEADERS_AND_SOURCES}", "--config-file=.clang-tidy", together]
    ran = subprocess.run(command + ["--"] + flags + BROUGHT_ABOUT, capture_output=True, text=True, check=False)
    if ran.returncode == 0:
        return ""
    if "[clang-diagnostic-error]" in ran.stdout and len(sources) > 1:
        singly = (look_at(build, f"{number}-{i}", flags, [one], end, left_out) for i, one in enumerate(sources))
        return "".join(singly)
    return ran.stdout + ("" if ran.stdout else ran.stderr)


def main():
    options = argparse.ArgumentParser()
    options.add_argument("build")
    options.add_argument("--seconds", type=float, default=float("inf"))
    options.add_argument("sources", nargs="*")
    chosen = options.parse_intermixed_args()
    build, end = chosen.build, time.monotonic() + chosen.seconds
    os.makedirs(os.path.join(build, "together"), exist_ok=True)
    batches = batches_of(build, chosen.sources)
    findings, done, left_out = {}, 0, []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as threads:
        running = [threads.submit(look_at, build, i, *batch, end, left_out) for i, batch in enumerate(batches)]
        for finished in concurrent.futures.as_completed(running):
            done += 1
            print(f"[{done}/{len(batches)}]", file=sys.stderr)
            for finding in re.split(r"(?m)^(?=\S+:\d+:\d+: (?:error|warning):)", finished.result()):
                if finding.strip() and finding not in findings:  # a header's are found in each batch
                    findings[finding] = True
                    print(finding, end="", flush=True)
    if left_out:
        print(f"The time is up: clang-tidy has not looked at {' '.join(sorted(left_out))}.", file=sys.stderr)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
