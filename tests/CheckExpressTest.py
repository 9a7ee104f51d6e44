"""scripts/check_express against texts of the exporter, as they are and damaged.

    CheckExpressTest.py TOOL
"""

import contextlib
import importlib.machinery
import importlib.util
import io
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

ROOT = pathlib.Path(__file__).resolve().parent.parent
CHECK = ROOT / "scripts" / "check_express"
DATA = ROOT / "tests" / "data"
TOOL = None


def load_script(path):
    loader = importlib.machinery.SourceFileLoader(path.name, str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(path.name, loader))
    loader.exec_module(module)
    return module


check_express = load_script(CHECK)


def dump_of(name):
    environment = os.environ | {"ZELDictionaryPath": str(DATA / "good")}
    return subprocess.run([TOOL, "dump", name, "--json"], env=environment, check=True, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout


def exported(name):
    return (DATA / "expected" / "express" / f"{name}.express").read_text(encoding="utf-8")


class CheckExpressTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dump = dump_of("ExpressPackage")
        cls.text = exported("ExpressPackage")

    def check(self, text, dump=None):
        """Returns the exit status and what is printed."""
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            agrees = check_express.check("S", text, json.loads(dump or self.dump))
        return 0 if agrees else 1, output.getvalue()

    def run_script(self, dump, *paths):
        return subprocess.run([CHECK, "-", *paths], input=dump, text=True, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def assert_found(self, text, line, sentence):
        status, output = self.check(text)
        self.assertEqual(status, 1, output)
        self.assertIn(f"S:{line}: {sentence}", output)

    def damaged(self, before, after):
        """Returns the text with one place changed, and the number of its line."""
        self.assertEqual(self.text.count(before), 1, before)
        return self.text.replace(before, after), self.text[:self.text.index(before)].count("\n") + 1

    def test_accepts_every_form_of_line(self):
        self.assertEqual(self.check(self.text), (
            0, "S: agrees; 3 entities, 30 attributes, 4 inverses, 2 unique keys; every class is written\n"))

    def test_tells_which_class_ended_the_export(self):
        self.assertEqual(self.check(exported("ExpressHidden"), dump_of("ExpressHidden")), (
            0, "S: agrees; 1 entities, 0 attributes, 0 inverses, 0 unique keys; "
               "2 not written: Transient is neither persistent nor a super class\n"))

    def test_finds_a_class_written_behind_the_end(self):
        text = exported("ExpressHidden").replace("END_SCHEMA", "ENTITY Hidden ;\nEND_ENTITY ;\n\nEND_SCHEMA")
        status, output = self.check(text, dump_of("ExpressHidden"))
        self.assertEqual(status, 1)
        self.assertIn("S:9: ENTITY Hidden does not belong here\n", output)

    def test_finds_each_line_that_is_missing(self):
        lines = self.text.splitlines(keepends=True)
        for index, line in enumerate(lines):
            if line.isspace() or line.startswith("(* "):
                continue
            with self.subTest(line=line):
                status, output = self.check("".join(lines[:index] + lines[index + 1:]))
                self.assertEqual(status, 1, output)

    def test_finds_each_line_that_stands_twice(self):
        lines = self.text.splitlines(keepends=True)
        for index, line in enumerate(lines):
            if line.isspace() or line.startswith("(* "):
                continue
            with self.subTest(line=line):
                status, output = self.check("".join(lines[:index] + [line] + lines[index:]))
                self.assertEqual(status, 1, output)

    def test_finds_each_word_that_is_wrong(self):
        lines = self.text.splitlines(keepends=True)
        for index, line in enumerate(lines):
            if not line.startswith(("    ", "ENTITY ", "USE ", "SCHEMA ")):
                continue
            words = line.split(" ")
            for place, word in enumerate(words):
                if not word.strip():
                    continue
                wrong = " ".join(words[:place] + ["x" + word] + words[place + 1:])
                with self.subTest(line=wrong):
                    status, output = self.check("".join(lines[:index] + [wrong] + lines[index + 1:]))
                    self.assertEqual(status, 1, output)

    def test_says_what_type_was_expected(self):
        text, line = self.damaged("ShortString                       : string(3)",
                                  "ShortString                       : string(4)")
        self.assert_found(text, line, 'Root::ShortString: "string(3) ;" expected, "string(4)  ;" found\n')

    def test_names_the_attribute_without_a_line(self):
        text, _ = self.damaged("    Logical                           : OPTIONAL logical ; \n", "")
        self.assert_found(text, 10, "attribute Root::Logical has no line\n")

    def test_finds_an_entity_that_is_not_closed(self):
        text = self.text.replace("END_ENTITY ;\n", "", 1)
        self.assert_found(text, 30, "ENTITY Root of line 10 has no END_ENTITY\n")

    def test_finds_an_end_without_beginning(self):
        self.assert_found(self.text.replace("END_SCHEMA", "END_ENTITY ;\nEND_SCHEMA"), 61,
                          "END_ENTITY without ENTITY\n")

    def test_finds_a_schema_that_is_cut_off(self):
        self.assert_found(self.text[:-5], 61, "the last line has no end\n")
        self.assert_found(self.text[:self.text.index("END_SCHEMA")], 60, "no END_SCHEMA\n")

    def test_finds_an_entity_out_of_order(self):
        begin = self.text.index("ENTITY Middle")
        end = self.text.index("ENTITY Leaf")
        date = self.text.index("ENTITY OXM_DATE")
        text = self.text[:begin] + self.text[end:date] + self.text[begin:end] + self.text[date:]
        status, output = self.check(text)
        self.assertEqual(status, 1)
        self.assertIn("ENTITY Leaf stands too early\n", output)

    def test_finds_a_mark_of_redefinition_too_many_and_one_too_few(self):
        text = self.text.replace("    Boolean                           : boolean ; \n",
                                 "    (* -- Specialization : Boolean                           : boolean ; \n"
                                 "  --*)\n")
        self.assert_found(text, 11, "Root::Boolean is marked as redefinition\n")
        text = self.text.replace("    (* -- Specialization : Plain                             : OPTIONAL Root ;\n"
                                 "  --*)\n",
                                 "    Plain                             : OPTIONAL Root ;\n")
        self.assert_found(text, 55, "Leaf::Plain is not marked as redefinition\n")

    def test_finds_a_comment_that_is_not_closed(self):
        self.assert_found(self.text.replace("  --*)\n", "", 1), 54, "the comment of line 53 is not closed\n")

    def test_finds_a_colon_out_of_its_column(self):
        text, line = self.damaged("    Logical                           : ", "    Logical : ")
        self.assert_found(text, line, "Logical: the colon is not in its column\n")

    def test_refuses_a_schema_of_no_package_of_the_dump(self):
        status, output = self.check(self.text, dump_of("SavePlain"))
        self.assertEqual((status, output), (1, "S:4: no package ExpressPackage in the dump\n"))

    def test_the_exit_status_tells_whether_all_agree(self):
        with tempfile.TemporaryDirectory() as directory:
            good = pathlib.Path(directory) / "Good.express"
            bad = pathlib.Path(directory) / "Bad.express"
            good.write_text(self.text, encoding="utf-8")
            bad.write_text(self.text[:-5], encoding="utf-8")

            self.assertEqual(self.run_script(self.dump, good).returncode, 0)
            self.assertEqual(self.run_script(self.dump, bad, good).returncode, 1)

    def test_refuses_what_it_cannot_read(self):
        for dump, path in (("no dump", CHECK), (self.dump, "/nowhere/S.express")):
            run = self.run_script(dump, path)
            self.assertEqual(run.returncode, 2)
            self.assertRegex(run.stderr, "^check_express: .*\\n$")


if __name__ == "__main__":
    TOOL = sys.argv.pop()
    unittest.main()
