#!/usr/bin/env python3
"""What is planted, and what is left alone."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
import counted
import defects


def planted(text, kind):
    """The texts that the defects of a kind make of a source."""
    source = defects.Source("pages/some.cpp", text)
    return [defect.planted_in(text) for defect in source.defects if defect.kind == kind]


class Planting(unittest.TestCase):
    def test_operators_are_changed_and_templates_and_references_left_alone(self):
        text = "template <class T> bool Less(const T& a, std::span<int> b)\n{\n    return a < b[0];\n}\n"
        self.assertEqual(planted(text, "operator"), [text.replace("a < b", "a <= b")])

    def test_comments_literals_directives_and_static_asserts_are_left_alone(self):
        text = '// a < b 1\n#include "a 1"\n/* 2 == 2 */\nstatic_assert(1 == 1);\n'
        self.assertEqual(defects.Source("pages/some.cpp", text).defects, [])

    def test_a_condition_is_turned_round_never_met_and_always_met(self):
        text = "void F()\n{\n    if (IsReady(1))\n        Go();\n}\n"
        self.assertEqual(planted(text, "condition"),
                         [text.replace("IsReady(1)", new)
                          for new in ("!(IsReady(1))", "false && (IsReady(1))", "true || (IsReady(1))")])

    def test_a_loop_is_not_made_endless(self):
        text = "void F()\n{\n    while (IsMore())\n        Go();\n}\n"
        self.assertEqual(len(planted(text, "condition")), 2)

    def test_a_condition_that_declares_something_stays(self):
        text = "void F()\n{\n    if (const int* x = Find())\n        Go(x);\n}\n"
        self.assertEqual(planted(text, "condition"), [])

    def test_calls_and_assignments_are_dropped_and_declarations_stay(self):
        text = "void F()\n{\n    CString text(1);\n    Set(text,\n        2);\n    m_all = 3;\n    return Done();\n}\n"
        self.assertEqual(planted(text, "call"), [text.replace("Set(text,\n        2);", ";")])
        self.assertEqual(planted(text, "assignment"), [text.replace("m_all = 3;", ";")])

    def test_a_call_that_does_nothing_stays(self):
        text = "void F()\n{\n    CNCDialog::DoDataExchange(exchange);\n    DDX_Text(exchange, 1);\n}\n"
        self.assertEqual(planted(text, "call"), [text.replace("DDX_Text(exchange, 1);", ";")])

    def test_rows_of_tables_and_of_message_maps_and_what_is_said_of_a_row_are_dropped(self):
        text = ("constexpr Option options[] = {\n    Length<&R::Step>(\"Step\", \"x\")\n        .Within(kNotNegative),\n"
                "    Units<R>(),\n};\nBEGIN_MESSAGE_MAP(A, B)\n    ON_BN_CLICKED(IDC_A, &A::OnA)\nEND_MESSAGE_MAP()\n")
        self.assertEqual(planted(text, "row"),
                         [text.replace('Length<&R::Step>("Step", "x")\n        .Within(kNotNegative),', ""),
                          text.replace("Units<R>(),", ""), text.replace("ON_BN_CLICKED(IDC_A, &A::OnA)", "")])
        self.assertEqual(planted(text, "trait"), [text.replace(".Within(kNotNegative)", "")])

    def test_numbers_truths_texts_rules_and_ids_become_their_neighbours(self):
        self.assertEqual(planted("x = 7;", "constant"), ["x = 8;"])
        self.assertEqual(planted("x = 0x1Fu;", "constant"), ["x = 0x20;"])
        self.assertEqual(planted("x = 0.25;", "constant"), ["x = 0.5;"])
        self.assertEqual(planted("x = true;", "truth"), ["x = false;"])
        self.assertEqual(planted('x = "Key";', "text"), ['x = "Keyx";'])
        self.assertEqual(planted("Within(kNotNegative)", "rule"), ["Within(kAnyReal)"])
        self.assertEqual(planted("F(IDC_A, IDC_B, IDS_A)", "id"), ["F(IDC_B, IDC_B, IDS_A)", "F(IDC_A, IDC_A, IDS_A)"])

    def test_the_same_seed_chooses_the_same(self):
        sources = [defects.Source("pages/some.cpp", "x = 1 + 2 + 3 + 4 < 5 && true;")]
        weights = {"pages": 1}
        self.assertEqual(defects.chosen(sources, weights, 5, 7), defects.chosen(sources, weights, 5, 7))
        self.assertNotEqual(defects.chosen(sources, weights, 5, 7), defects.chosen(sources, weights, 5, 8))


if __name__ == "__main__":
    counted.main(Planting)
