#!/usr/bin/env python3
"""What is changed in a source, and what is left alone."""

import sys
import unittest

sys.dont_write_bytecode = True
import changes  # noqa: E402


def body(*lines):
    return "void f()\n{\n" + "".join(f"    {line}\n" for line in lines) + "}\n"


def changed(source, *kinds):
    """The changed lines, each as it comes out."""
    return [change.told(source)[1] for change in changes.changes(source, kinds or changes.KINDS)]


class Changes(unittest.TestCase):
    def test_a_comparison_is_turned(self):
        self.assertEqual(changed(body("return a < b && c == d;"), "comparison"),
                         ["return a <= b && c == d;", "return a < b && c != d;"])

    def test_brackets_and_arrows_are_no_comparison(self):
        self.assertEqual(changed(body("std::vector<int> a(b->c);"), "comparison"), [])

    def test_a_constant_is_off_by_one(self):
        self.assertEqual(changed(body("return f(0, 9, 0x1F, 0700);"), "constant"),
                         ["return f(1, 9, 0x1F, 0700);", "return f(0, 10, 0x1F, 0700);", "return f(0, 8, 0x1F, 0700);",
                          "return f(0, 9, 0x1E, 0700);", "return f(0, 9, 0x20, 0700);", "return f(0, 9, 0x1F, 0677);",
                          "return f(0, 9, 0x1F, 0701);"])
        self.assertEqual(changed(body("return 1'000 + a1 + 1.5;"), "constant"),
                         ["return 1001 + a1 + 1.5;", "return 999 + a1 + 1.5;"])
        self.assertEqual(changed(body("return true;"), "constant"), ["return false;"])

    def test_a_condition_is_negated(self):
        self.assertEqual(changed(body("if (a(b))", "    return;"), "condition"), ["if (!(a(b)))"])
        self.assertEqual(changed(body("while (!a)", "    f();"), "condition"), ["while (a)"])
        self.assertEqual(changed(body("return a && !b;"), "condition"), ["return a || !b;", "return a && b;"])

    def test_a_condition_that_declares_is_left_alone(self):
        self.assertEqual(changed(body("if (const int a = f())", "    return;"), "condition"), [])

    def test_a_line_is_dropped(self):
        self.assertEqual(changed(body("f();", "a = b;", "++i;", "return;"), "line"), ["{}"] * 4)
        self.assertEqual(changed(body("if (a)", "    f();", "else", "    g();"), "line"), ["{}"] * 2)

    def test_no_declaration_goes_and_no_value_that_is_returned(self):
        self.assertEqual(changed(body("int a = b;", "const QString c;", "Type d(e);", "return a;"), "line"), [])

    def test_no_part_of_a_longer_statement_goes(self):
        self.assertEqual(changed(body("f(a,", "    b);", "return c", "    + d();"), "line"), [])

    def test_members_of_a_class_stay(self):
        source = "class A {\npublic:\n    A();\n    int f() { return 0; }\n\nprivate:\n    int m_a = 1;\n    B *b();\n};\n"
        self.assertEqual(changed(source, "line"), [])

    def test_texts_comments_and_includes_are_left_alone(self):
        self.assertEqual(changed('#include "a < 1"\n' + body('f("a < 1 && b", \'1\'); // a == 2'), "comparison", "constant",
                                 "condition"), [])

    def test_the_rest_of_the_source_stays(self):
        source = body("if (a < 1)", "    f();")
        for change in changes.changes(source):
            whole = change.applied(source)
            self.assertEqual(whole[:change.begin], source[:change.begin])
            self.assertTrue(whole.endswith(source[change.end:]))
            self.assertEqual(change.line(source), 4 if change.kind == "line" else 3)


if __name__ == "__main__":
    unittest.main()
