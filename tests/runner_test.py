#!/usr/bin/env python3
"""The test programs' own tests: golden.py on scripts that play quorven and
maketrees, include_graph.py on small trees of sources."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent

# Writes a generated file, a log and messages; its arguments steer it.
QUORVEN = r"""#!/bin/sh
status=0 body= last=
for word in "$@"; do
  case $word in
    status=*) status=${word#*=} ;;
    body=*) body=${word#*=} ;;
    say=*) echo "${word#*=}" ;;
    err=*) echo "${word#*=}" >&2 ;;
    append=*) echo more >>"${word#*=}" ;;
    remove=*) rm "${word#*=}" ;;
    cat=*) cat "${word#*=}" ;;
    binary) printf '\000\001\377' >x.bin ;;
    count) echo run >>"$COUNTER"; wc -l <"$COUNTER" ;;
    nothing) exit "$status" ;;
    kill) kill -9 $$ ;;
  esac
  last=$word
done
stamp=$(date '+%d.%m.%Y at %-H:%M.%S')
case " $* " in
  *" old "*) stamp='01.02.2003 at 4:05.06' ;;
esac
{
  echo '/****'
  case " $* " in
    *" unstamped "*) ;;
    *) echo " * Processed by QUORVEN version 1.01.3 on $stamp" ;;
  esac
  case " $* " in
    *" twice "*) echo " * Processed by QUORVEN version 1.01.3 on $stamp" ;;
  esac
  echo ' * Syntax file processed by ZELK 2.13 on 03.02.2001 at 1:02.03'
  echo ' ****/'
  echo "$body"
  case " $* " in
    *" variant "*) echo "$last" ;;
  esac
} >abcpec.c
exit "$status"
"""
MAKETREES = r"""#!/bin/sh
directory=$1
shift
for name in "$@"; do
  [ "$name" != unknown ] || { echo 'no such recipe'; exit 1; }
  echo "tree $name" >"$directory/$name.stx"
done
"""
HEADER = """/****
 * Processed by QUORVEN version 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 03.02.2001 at 1:02.03
 ****/
"""


class Scratch(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.top = Path(scratch.name)

    def write(self, name, text, mode=0o644):
        path = self.top / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        path.chmod(mode)

    def run_program(self, *arguments):
        environment = {"PATH": "/usr/bin:/bin",
                       "COUNTER": str(self.top / "counter")}
        done = subprocess.run([sys.executable, *arguments], cwd=self.top,
                              env=environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, check=False)
        self.assertEqual("", done.stderr)
        return done.returncode, done.stdout


class Golden(Scratch):
    def setUp(self):
        super().setUp()
        self.write("bin/quorven", QUORVEN, 0o755)
        self.write("bin/tests/maketrees", MAKETREES, 0o755)

    def case(self, cmd, **expect):
        self.write("case/cmd", cmd)
        for name, text in expect.items():
            name = name.replace("c_file", "out/abcpec.c")
            self.write(f"case/expect/{name}", text)

    def golden(self, *more):
        return self.run_program(HERE / "golden.py", "--bin", "bin", "--case",
                                "case", *more)

    def assert_good(self):
        status, output = self.golden()
        self.assertEqual((0, ""), (status, output))

    def assert_fails(self, text):
        status, output = self.golden()
        self.assertEqual(1, status)
        self.assertIn(text, output)
        self.assertTrue(output.endswith("FAILED: case\n"), output)

    def test_agreeing_case_passes(self):
        self.case("say=hello err=oops body=x status=2\n",
                  c_file=HEADER + "x\n", stdout="hello\n", stderr="oops\n",
                  status="2\n")
        self.assert_good()

    def test_each_difference_fails(self):
        good = {"c_file": HEADER + "x\n", "stdout": "hello\n",
                "stderr": "oops\n", "status": "2\n"}
        for name, text, shown in (
                ("c_file", HEADER + "x \n", "-x\\s\n+x\n"),
                ("c_file", HEADER + "x", "no newline at the end"),
                ("stdout", "hallo\n", "-hallo\n+hello\n"),
                ("stderr", "", "+oops\n"),
                ("status", "0\n", "-0\n+2\n")):
            with self.subTest(name=name, text=text):
                self.case("say=hello err=oops body=x status=2",
                          **{**good, name: text})
                self.assert_fails(shown)

    def test_tree_stamp_is_compared(self):
        self.case("", status="0\n",
                  c_file=HEADER.replace("1:02.03", "1:02.04") + "\n")
        self.assert_fails("+ * Syntax file processed")

    def test_stamp_must_be_there_once_and_of_this_run(self):
        for word, text in (("unstamped", "stands there 0 times"),
                           ("twice", "stands there 2 times"),
                           ("old", "is not the time of the run")):
            with self.subTest(word=word):
                self.case(word, c_file=HEADER + "\n", status="0\n")
                self.assert_fails(text)
        self.assertFalse((self.top / "case/expect/stdout").exists())

    def test_expected_file_that_is_not_written_fails(self):
        self.case("nothing", c_file="", status="0\n")
        self.assert_fails("out/abcpec.c: in expect, not in run")

    def test_missing_expectations_are_written_and_fail_once(self):
        self.case("body=x say=hello")
        self.assert_fails("missing expectations were written")
        expect = self.top / "case/expect"
        self.assertEqual(HEADER + "x\n",
                         (expect / "out/abcpec.c").read_text())
        self.assertEqual("hello\n", (expect / "stdout").read_text())
        self.assertEqual("0\n", (expect / "status").read_text())
        self.assertFalse((expect / "stderr").exists())
        self.assert_good()

    def test_existing_expectation_is_not_overwritten(self):
        self.case("say=new", stdout="old\n", status="0\n")
        self.assert_fails("-old\n+new\n")
        self.assertEqual("old\n",
                         (self.top / "case/expect/stdout").read_text())

    def test_faulty_run_writes_no_expectation(self):
        self.case("unstamped")
        self.assert_fails("stands there 0 times")
        self.assertFalse((self.top / "case/expect").exists())

    def test_runs_must_agree(self):
        self.case("nothing", status="0\n")
        self.assert_good()
        self.case("count nothing", status="0\n", stdout="1\n")
        self.assert_fails("two runs do not agree")

    def test_several_runs_in_one_directory(self):
        self.case("say=one nothing\nsay=two append=log status=3 nothing\n"
                  "cat=log nothing", stdout="one\ntwo\nmore\n",
                  status="0\n3\n0\n")
        self.write("case/expect/out/log", "more\n")
        self.assert_good()

    def test_quoting_and_odd_bytes_reach_the_program(self):
        self.case("'say=a  \"b' nothing", stdout='a  "b\n', status="0\n")
        self.assert_good()
        (self.top / "case/cmd").write_bytes(b"say=\xe9 nothing")
        (self.top / "case/expect/stdout").write_bytes(b"\xe9\n")
        self.assert_good()

    def test_trees_files_and_setup_are_no_output(self):
        self.write("case/trees", "abc def # two\nother: ghi\n")
        self.write("case/files/opt/x.opt", "-V=1\n")
        self.write("case/setup", "cat opt/x.opt stx/def.stx >made\n")
        self.case("cat=stx/abc.stx cat=other/ghi.stx cat=made nothing",
                  stdout="tree abc\ntree ghi\n-V=1\ntree def\n",
                  status="0\n")
        self.assert_good()

    def test_changed_input_is_output_and_removed_input_is_a_fault(self):
        self.write("case/files/x", "one\n")
        self.case("append=x nothing", status="0\n")
        self.write("case/expect/out/x", "one\nmore\n")
        self.assert_good()
        self.case("remove=x nothing")
        self.assert_fails("x: was there before the run, is gone")

    def test_broken_preparation_fails(self):
        self.case("nothing", status="0\n")
        self.write("case/setup", "echo bad; false; true\n")
        self.assert_fails("bad")
        (self.top / "case/setup").unlink()
        self.write("case/trees", "unknown\n")
        self.assert_fails("no such recipe")

    def test_signal_is_no_status(self):
        self.case("kill", status="9\n")
        self.assert_fails("+signal 9\n")

    def test_binary_difference_is_shown_in_hexadecimal(self):
        self.case("binary nothing", status="0\n")
        self.write("case/expect/out/x.bin", "\0\1\2")
        self.assert_fails("+000000  00 01 ff")

    def test_variant_has_the_same_expectations_unless_it_has_its_own(self):
        self.case("variant", c_file=HEADER + "\nvariant\n", status="0\n")
        self.assert_fails("basic-unaligned: --- expect/out/abcpec.c")
        self.write("case/expect-unaligned/status", "0\n")
        self.write("case/expect-unaligned/out/abcpec.c",
                   HEADER + "\n-ENCODING-VARIANT=basic-unaligned\n")
        self.assert_good()

    def test_aligned_only(self):
        self.case("variant", c_file=HEADER + "\nvariant\n", status="0\n")
        self.write("case/aligned-only", "")
        self.assert_good()

    def test_update_rewrites_masked_and_drops_what_is_stale(self):
        self.case("variant", c_file="stale", stdout="stale", status="7\n")
        self.write("case/expect/out/old.c", "stale")
        self.assertEqual((0, ""), self.golden("--update"))
        expect = self.top / "case/expect"
        self.assertEqual(
            ["out", "out/abcpec.c", "status"],
            sorted(path.relative_to(expect).as_posix()
                   for path in expect.rglob("*")))
        self.assertEqual(HEADER + "\nvariant\n",
                         (expect / "out/abcpec.c").read_text())
        self.assertTrue((self.top / "case/expect-unaligned").exists())
        self.assert_good()
        self.case("nothing")
        self.assertEqual((0, ""), self.golden("--update"))
        self.assertFalse((self.top / "case/expect-unaligned").exists())

    def test_update_of_a_faulty_run_leaves_everything(self):
        self.case("unstamped", status="7\n")
        status, output = self.golden("--update")
        self.assertEqual(1, status)
        self.assertIn("stands there 0 times", output)
        self.assertEqual("7\n",
                         (self.top / "case/expect/status").read_text())


class IncludeGraph(Scratch):
    def graph(self):
        return self.run_program(HERE / "include_graph.py", ".")

    def header(self, name, *includes):
        self.write(name, "#pragma once\n" +
                   "".join(f'#include "{other}"\n' for other in includes))

    def assert_fault(self, text):
        status, output = self.graph()
        self.assertEqual((1, text + "\n"), (status, output))

    def test_lower_own_and_system_headers_are_good(self):
        self.header("src/base/a.h")
        self.header("src/store/b.h", "base/a.h")
        self.header("src/cbet/c.h", "store/b.h")
        self.header("src/cbet/d.h", "cbet/c.h")
        self.header("src/ade/e.h", "cbet/d.h")
        self.header("src/per/f.h", "cbet/d.h", "base/a.h")
        self.write("src/driver/main.cc", '#include "ade/e.h"\n'
                   '#include "per/f.h"\n#include <string>\n')
        self.header("tools/stx/g.h", "store/b.h")
        self.header("tests/support/h.h", "stx/g.h")
        self.assertEqual((0, ""), self.graph())

    def test_expected_output_is_no_source(self):
        bad = '#include "nowhere.h"\n'
        self.header("src/base/a.h")
        self.write("tests/golden/one/expect/out/x.h", bad)
        self.write("tests/golden/one/files/x.cc", bad)
        self.assertEqual((0, ""), self.graph())
        self.write("tests/goldens.cc", bad)
        self.assert_fault('tests/goldens.cc:1: #include "nowhere.h":'
                          " no such file in the project")

    def test_higher_layer(self):
        for low, high in (("base", "store"), ("store", "options"),
                          ("options", "model"), ("model", "cbet"),
                          ("cbet", "per"), ("cbet", "ade"), ("per", "ade"),
                          ("ade", "per"), ("per", "driver")):
            with self.subTest(low=low, high=high):
                self.header(f"src/{high}/up.h")
                self.write(f"src/{low}/x.cc", '\n#include "%s/up.h"\n' % high)
                self.assert_fault(f'src/{low}/x.cc:2: #include "{high}/up.h":'
                                  f" {high} is not below {low}")
                (self.top / f"src/{low}/x.cc").unlink()

    def test_src_includes_neither_tools_nor_tests(self):
        self.header("tools/stx/w.h")
        self.write("src/driver/x.cc", '#include "stx/w.h"\n')
        self.assert_fault('src/driver/x.cc:1: #include "stx/w.h": '
                          "src never includes tools")

    def test_circle(self):
        self.header("src/base/a.h", "base/b.h")
        self.header("src/base/b.h", "base/a.h")
        self.assert_fault("src/base/b.h:2: circle: src/base/a.h -> "
                          "src/base/b.h -> src/base/a.h")

    def test_pragma_once(self):
        self.write("tests/a.h", "// Text.\n#pragma once\n")
        self.assert_fault(
            "tests/a.h:1: a header starts with #pragma once")

    def test_source_file(self):
        self.write("src/base/a.cc", "")
        self.write("tests/unit/a_test.cc", '#include "base/a.cc"\n')
        self.assert_fault('tests/unit/a_test.cc:1: #include "base/a.cc": '
                          "includes a source file")

    def test_unknown_file_and_layer(self):
        self.write("src/base/a.cc", '#include "base/none.h"\n')
        self.assert_fault('src/base/a.cc:1: #include "base/none.h": '
                          "no such file in the project")
        self.header("src/base/none.h")
        self.write("src/extra/b.cc", '#include "base/none.h"\n')
        self.assert_fault("src/extra/b.cc:1: src/extra is no layer")

    def test_angle_brackets_hide_nothing(self):
        self.header("src/driver/meta.h")
        self.write("src/base/a.cc", "#include <driver/meta.h>\n")
        self.assert_fault("src/base/a.cc:1: #include <driver/meta.h>: "
                          "belongs in quotes")

    def test_no_sources(self):
        self.assert_fault(".: no sources found")


if __name__ == "__main__":
    unittest.main()
