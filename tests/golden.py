#!/usr/bin/env python3
"""Runs one golden case and compares every byte that quorven leaves behind.

    golden.py --bin BUILD_DIR --case DIR [--update]

A case is a directory:

    cmd            the arguments of quorven, quoted as in a shell; each line
                   is one run, an empty line or file a run without arguments;
                   a line "!PROGRAM ..." runs a companion instead
    *.asn          modules, copied into the working directory
    asn            if present: what asn2stx compiles into stx/ ahead of the
                   runs, as "[options] FILE.asn ..."
    trees          recipes of the program maketrees, written into stx/; a line
                   "DIR: NAME..." writes into another directory, "#" begins a
                   comment
    files/         copied into the working directory
    setup          sh script, run in the working directory after the above
    aligned-only   if present, the case has no basic-unaligned runs
    expect/        what must come of it:
      out/PATH       each file written or changed
      stdout, stderr absent: empty; several runs one after the other
      status         exit status, one line a run
    expect-unaligned/
                   the same for basic-unaligned, where that differs

Of a tree that a run writes only its name is compared: "!stxdump" shows it.

Only cmd and expect/ are needed. The working directory is a fresh one, and
quorven runs in it. Each variant runs twice, and both runs must agree.

The header of a generated file holds the time of the run; it is masked as
"<time>", and must be there exactly once in each file that begins as a
generated file does. The time of the tree stands beside it and is compared.

A missing expectation is written and the case fails: derive it by hand, read
what was written, then commit.
"""

import argparse
import difflib
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import time
from calendar import timegm
from pathlib import Path

TIMEOUT = 60  # seconds a run; a hang is a failure
UNALIGNED = b"-ENCODING-VARIANT=basic-unaligned"
GENERATED_START = b"/****"
COMPANIONS = {b"!asn2stx": "tools/asn2stx/asn2stx",
              b"!stxdump": "tools/stx/stxdump",
              b"!tracegen": "tests/tracegen"}
TREE_STAMP = "--stamp=20240101:120000"
STAMP_LINE = re.compile(
    rb"^(?P<before>.*Processed by QUORVEN\b.*?)"
    rb"\bon (?P<stamp>\d\d\.\d\d\.\d+ at \d+:\d\d\.\d\d)",
    re.MULTILINE)


class CaseError(Exception):
    """The case itself is broken, or a run did what no run may do."""


class Result:
    """What one pass over the case left behind, masked."""

    def __init__(self):
        self.files = {}  # "out/PATH", "stdout", "stderr", "status": bytes
        self.faults = []  # texts

    def __eq__(self, other):
        return self.files == other.files and self.faults == other.faults


def run_environment():
    return {**os.environ, "LC_ALL": "C", "TZ": "UTC"}


def command_lines(case, variant_arguments):
    text = (case / "cmd").read_bytes().decode("utf-8", "surrogateescape")
    runs = []
    for line in text.splitlines() or [""]:
        words = [word.encode("utf-8", "surrogateescape")
                 for word in shlex.split(line)]
        if words and words[0] in COMPANIONS:
            runs.append(words)
        else:
            runs.append([b"quorven", *words, *variant_arguments])
    return runs


def program_path(binary_dir, word):
    return os.fsencode(binary_dir / COMPANIONS.get(word, "quorven"))


def compile_asn(case, binary_dir, work):
    (work / "stx").mkdir(exist_ok=True)
    arguments = shlex.split((case / "asn").read_text())
    helper([binary_dir / COMPANIONS[b"!asn2stx"], TREE_STAMP, "-o", "stx",
            *arguments], work)


def helper(arguments, work):
    """Runs a step that prepares the working directory."""
    done = subprocess.run(arguments, cwd=work, env=run_environment(),
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, timeout=TIMEOUT,
                          check=False)
    if done.returncode != 0:
        output = done.stdout.decode("utf-8", "backslashreplace")
        command = " ".join(str(word) for word in arguments)
        raise CaseError(f"{command}: status {done.returncode}\n{output}")


def make_trees(case, binary_dir, work):
    program = binary_dir / "tests" / "maketrees"
    for line in (case / "trees").read_text().splitlines():
        line = line.split("#", 1)[0].strip()
        if not line:
            continue
        directory, colon, names = line.rpartition(":")
        target = work / (directory.strip() if colon else "stx")
        target.mkdir(parents=True, exist_ok=True)
        helper([program, target, *names.split()], work)


def prepare(case, binary_dir, work):
    if (case / "files").is_dir():
        shutil.copytree(case / "files", work, symlinks=True,
                        dirs_exist_ok=True)
    for module in case.glob("*.asn"):
        shutil.copy(module, work)
    if (case / "trees").exists():
        make_trees(case, binary_dir, work)
    if (case / "asn").exists():
        compile_asn(case, binary_dir, work)
    if (case / "setup").exists():
        helper(["sh", "-e", case / "setup"], work)


def snapshot(work):
    """All regular files below, by relative path; links are not followed."""
    files = {}
    for directory, _, names in os.walk(work):
        for name in names:
            path = Path(directory, name)
            if path.is_symlink() or not path.is_file():
                continue
            try:
                content = path.read_bytes()
            except PermissionError:
                content = b"(not readable)"
            if path.suffix == ".stx":
                content = b"(a tree)\n"
            files[path.relative_to(work).as_posix()] = content
    return files


def mask(name, content, started, result):
    """The content without the time of the run."""
    if not content.startswith(GENERATED_START):
        return content
    hits = list(STAMP_LINE.finditer(content))
    if len(hits) != 1:
        result.faults.append(
            f"{name}: the time of the run stands there {len(hits)} times")
        return content
    text = hits[0]["stamp"].decode("ascii")
    try:
        stamp = timegm(time.strptime(text, "%d.%m.%Y at %H:%M.%S"))
    except ValueError:
        stamp = 0
    # The clock of whole seconds may lag behind by a tick.
    if not int(started) - 1 <= stamp <= time.time():
        result.faults.append(f"{name}: '{text}' is not the time of the run")
    return STAMP_LINE.sub(rb"\g<before><time>", content)


def status_text(code):
    return f"{code}\n" if code >= 0 else f"signal {-code}\n"


def run_once(case, binary_dir, variant_arguments):
    result = Result()
    streams = {"stdout": b"", "stderr": b"", "status": b""}
    with tempfile.TemporaryDirectory(prefix="quorven-golden-") as name:
        work = Path(name)
        prepare(case, binary_dir, work)
        before = snapshot(work)
        started = time.time()
        for arguments in command_lines(case, variant_arguments):
            try:
                done = subprocess.run(
                    [program_path(binary_dir, arguments[0]), *arguments[1:]],
                    cwd=work, env=run_environment(), timeout=TIMEOUT,
                    stdin=subprocess.DEVNULL, capture_output=True,
                    check=False)
            except subprocess.TimeoutExpired:
                raise CaseError(f"no end after {TIMEOUT} seconds") from None
            streams["stdout"] += done.stdout
            streams["stderr"] += done.stderr
            streams["status"] += status_text(done.returncode).encode()
        after = snapshot(work)
    for path, content in sorted(after.items()):
        if before.get(path) != content:
            result.files["out/" + path] = mask(path, content, started, result)
    for path in sorted(set(before) - set(after)):
        result.faults.append(f"{path}: was there before the run, is gone")
    # An empty stream is expected where nothing is; a status is always there.
    result.files.update((stream, content)
                        for stream, content in streams.items() if content)
    return result


def expectations(directory):
    return {path.relative_to(directory).as_posix(): path.read_bytes()
            for path in sorted(directory.rglob("*")) if path.is_file()}


def store(directory, files):
    for name, content in files.items():
        path = directory / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def as_lines(content):
    """Lines fit for a terminal: blanks at their ends and odd bytes show."""
    text = content.decode("utf-8", "backslashreplace")
    lines = []
    for line in text.split("\n"):
        bare = line.rstrip(" ")
        line = bare + "\\s" * (len(line) - len(bare))
        lines.append("".join(c if c.isprintable() or c == "\t"
                             else c.encode("unicode_escape").decode()
                             for c in line))
    if lines[-1]:
        lines[-1] += "  (no newline at the end of the file)"
    else:
        lines.pop()
    return lines


def hex_lines(content):
    return [f"{at:06x}  {content[at:at + 16].hex(' ')}"
            for at in range(0, len(content), 16)]


def difference(name, want, have, want_title, have_title):
    show = hex_lines if b"\0" in want + have else as_lines
    if show(want) == show(have):
        show = hex_lines
    return "\n".join(difflib.unified_diff(
        show(want), show(have), f"{want_title}/{name}",
        f"{have_title}/{name}", lineterm=""))


def differences(want, have, want_title, have_title):
    """One text for each file in which the two sets differ."""
    texts = []
    for name in sorted(set(want) | set(have)):
        if want.get(name) == have.get(name):
            continue
        # An empty file differs from none, but has no lines to show it.
        if name not in have and name not in ("stdout", "stderr"):
            texts.append(f"{name}: in {want_title}, not in {have_title}")
        elif name not in want and name not in ("stdout", "stderr"):
            texts.append(f"{name}: in {have_title}, not in {want_title}")
        texts.append(difference(name, want.get(name, b""),
                                have.get(name, b""), want_title, have_title))
    return [text for text in texts if text]


def run_twice(case, binary_dir, variant_arguments):
    """The result of the case, and the texts of what is wrong with it."""
    first = run_once(case, binary_dir, variant_arguments)
    second = run_once(case, binary_dir, variant_arguments)
    faults = list(first.faults)
    if first != second:
        faults.append("two runs do not agree")
        faults += differences(first.files, second.files, "first run",
                              "second run")
    return first, faults


def check(case, directory, result, may_write):
    """Compares with the expectations; writes those that are missing."""
    want = expectations(directory)
    missing = {name: content for name, content in result.files.items()
               if name not in want} if may_write else {}
    faults = []
    if missing:
        store(directory, missing)
        names = "".join(f"\n  {directory.relative_to(case)}/{name}"
                        for name in missing)
        faults.append("missing expectations were written: derive them by "
                      f"hand, read them, then commit{names}")
    return faults + differences({**want, **missing}, result.files,
                                directory.name, "run")


def run_case(case, binary_dir):
    result, faults = run_twice(case, binary_dir, [])
    # What is faulty is nothing to write down.
    faults += check(case, case / "expect", result, not faults)
    report("basic-aligned", faults)
    if (case / "aligned-only").exists():
        return not faults
    result, unaligned = run_twice(case, binary_dir, [UNALIGNED])
    own = case / "expect-unaligned"
    unaligned += check(case, own if own.is_dir() else case / "expect", result,
                       own.is_dir() and not unaligned)
    report("basic-unaligned", unaligned)
    return not faults and not unaligned


def update_case(case, binary_dir):
    result, faults = run_twice(case, binary_dir, [])
    report("basic-aligned", faults)
    own_files = None
    if not (case / "aligned-only").exists():
        unaligned, more = run_twice(case, binary_dir, [UNALIGNED])
        report("basic-unaligned", more)
        faults += more
        if unaligned.files != result.files:
            own_files = unaligned.files
    if faults:
        return False
    for name, files in (("expect", result.files),
                        ("expect-unaligned", own_files)):
        shutil.rmtree(case / name, ignore_errors=True)
        if files:
            store(case / name, files)
    return True


def report(variant, faults):
    for text in faults:
        print(f"{variant}: {text}\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--bin", required=True, type=Path,
                        help="build directory")
    parser.add_argument("--case", required=True, type=Path,
                        help="directory of the case")
    parser.add_argument("--update", action="store_true",
                        help="rewrite the expectations")
    arguments = parser.parse_args()
    sys.stdout.reconfigure(errors="backslashreplace")
    case = arguments.case.resolve()
    binary_dir = arguments.bin.resolve()
    try:
        if not (case / "cmd").exists():
            raise CaseError("no file cmd")
        if arguments.update:
            good = update_case(case, binary_dir)
        else:
            good = run_case(case, binary_dir)
    except (CaseError, OSError, ValueError,
            subprocess.TimeoutExpired) as error:
        print(error)
        good = False
    if not good:
        print(f"FAILED: {case.name}")
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
