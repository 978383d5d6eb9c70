"""Checks the generator's parts by hand-made pieces, and data/ against the sources, read here by other code."""

import re
import unittest

import generate
import tcb
from cssGrammar import Grammar
from dtd import Definition
from knowledge import Attribute, Element, Joiner, OWN
from tables import names, rows, source, unmarked


class DefinitionTest(unittest.TestCase):
    def elements(self, text, **switches):
        return Definition(text, switches).elements

    def test_lists_attributes_with_their_words_in_lower_case(self):
        text = '<!ATTLIST (TD|Th) -- a cell -- scope (Row | COL) #IMPLIED -- why -- abbr CDATA #IMPLIED width NUMBER 1>'
        cell = {"scope": ["row", "col"], "abbr": None, "width": None}
        self.assertEqual(self.elements(text), {"td": cell, "th": cell})

    def test_expands_entities_of_which_the_first_holds(self):
        text = """<!-- <!ENTITY % a "x CDATA #IMPLIED"> --><!ENTITY % a "y %t; #REQUIRED"><!ENTITY % a "z CDATA #IMPLIED">
                  <!ENTITY % t "CDATA" -- text, with a > in it --><!ATTLIST P %a; %unknown; v CDATA #FIXED '%b'>"""
        self.assertEqual(self.elements(text), {"p": {"y": None, "v": None}})

    def test_reads_marked_sections_as_their_switch_says(self):
        text = '<!ENTITY % s "IGNORE"><![ %s; [ <!ATTLIST A b (b) b> ]]><!ATTLIST C d CDATA "e f">'
        self.assertEqual(self.elements(text), {"c": {"d": None}})
        self.assertEqual(self.elements(text, s="INCLUDE"), {"a": {"b": ["b"]}, "c": {"d": None}})


class GrammarTest(unittest.TestCase):
    def values(self, syntax, syntaxes=None, properties=None, words=None):
        return Grammar({"it": syntax} | (properties or {}), syntaxes or {}, words or {}).values("it")

    def test_takes_words_and_leaves_out_measures_and_punctuation(self):
        self.assertEqual(self.values("none | [ <length [0,∞]>{1,4} || a-b ]# / c? , d+"), ["none", "a-b", "c", "d"])

    def test_looks_into_types_and_other_properties(self):
        syntaxes = {"x": "x1 | <y>", "y": "y1 | <x>"}
        self.assertEqual(self.values("<x> && <'other'>", syntaxes, {"other": "o | <'it'>"}), ["x1", "y1", "o"])

    def test_tells_a_property_from_a_type_of_its_name(self):
        self.assertEqual(self.values("<it>", {"it": "a"}), ["a"])

    def test_names_functions_without_looking_into_them_and_puts_them_last(self):
        syntaxes = {"f()": "f( inner | g( deep ) )", "u": "url( <string> more ) | after"}
        self.assertEqual(self.values("<f()> | <u> | <calc()> | b", syntaxes), ["after", "b", "f()", "url()"])

    def test_puts_names_of_colours_behind_other_words(self):
        syntaxes = {"named-color": "red | blue"}
        self.assertEqual(self.values("<named-color> | none | f()", syntaxes), ["none", "red", "blue", "f()"])

    def test_prefers_words_of_ours_to_those_of_the_syntax(self):
        self.assertEqual(self.values("<x> | b", {"x": "old"}, words={"x": ["a", "c"]}), ["a", "c", "b"])


class FilesTest(unittest.TestCase):
    def test_html_is_marked_by_depth_and_deprecation(self):
        attributes = [
            Attribute("alt", OWN, valued=True, hint="Text"),
            Attribute("size", OWN, valued=True, deprecated=True, values=[("1", False), ("2", True)]),
            Attribute("open", OWN, bare=True),
            Attribute("hidden", OWN, bare=True, valued=True, values=[("until-found", False)]),
        ]
        elements = [Element("br"), Element("font", deprecated=True, attributes=attributes)]
        self.assertEqual(
            tcb.html(elements),
            b"\xbbbr\r\n\xabfont\r\n\xbb\xbbalt=Text\r\n\xbb\xabsize=\r\n\xbb\xbb\xbb1\r\n\xbb\xbb\xab2\r\n"
            b"\xbb\xbbopen\r\n\xbb\xbbhidden\r\n\xbb\xbbhidden=\r\n\xbb\xbb\xbbuntil-found\r\n",
        )

    def test_text_that_would_not_come_back_is_refused(self):
        for name in ("", "a»b", "«", "a\nb"):
            self.assertRaises(AssertionError, tcb.html, [Element(name)])
        self.assertRaises(UnicodeEncodeError, tcb.html, [Element("ō")])


def read_html():
    """{element: (deprecated, {attribute without "=": (deprecated, forms, {value: deprecated})})} of data/Html.tcb."""
    found = {}
    for line in (generate.DATA / "Html.tcb").read_bytes().decode("cp1252").split("\r\n")[:-1]:
        text = line.lstrip("»«")
        depth, deprecated = len(line) - len(text), "«" in line
        if depth == 1:
            found[text] = (deprecated, attributes := {})
        elif depth == 2:
            name, equals, _ = text.partition("=")
            attributes.setdefault(name, (deprecated, set(), values := {}))[1].add(equals)
            values = attributes[name][2]
        else:
            values[text] = deprecated
    return found


class SourcesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.html = read_html()
        cls.omitted = {}
        for elements, attributes in rows("omissions.txt"):
            for element in names(elements):
                cls.omitted.setdefault(element, set()).update(attributes.split() or [""])

    def is_omitted(self, element, attribute=""):
        return attribute in self.omitted.get(element, set()) or "" in self.omitted.get(element, set())

    def test_all_of_html_401_is_known(self):
        loose = Definition(source("html401/loose.dtd"), {"HTML.Frameset": "INCLUDE"}).elements
        self.assertEqual(len(loose), 91)  # so many its index of elements has
        for element, attributes in loose.items():
            for name, words in attributes.items():
                with self.subTest(element=element, attribute=name):
                    _, forms, values = self.html[element][1][name]
                    self.assertIn("" if words == [name] else "=", forms)
                    self.assertLessEqual(set(words or []) - {name}, set(values))

    def test_what_html_401_deprecates_is_deprecated_unless_html_took_it_up_again(self):
        taken_up = {
            ("a", "target"), ("area", "target"), ("base", "target"), ("form", "target"), ("li", "value"),
            ("ol", "start"), ("ol", "type"),
        }  # fmt: skip
        strict = Definition(source("html401/strict.dtd")).elements
        loose = Definition(source("html401/loose.dtd")).elements
        given_up = {(element, name) for element in strict for name in set(loose[element]) - set(strict[element])}
        self.assertLessEqual(taken_up | {("body", "bgcolor"), ("td", "nowrap"), ("ul", "type")}, given_up)
        for element, name in given_up:
            with self.subTest(element=element, attribute=name):
                self.assertEqual(self.html[element][1][name][0], (element, name) not in taken_up)

    def test_elements_and_attributes_of_html_validate_stand_as_it_tells_them(self):
        for element, told in source("html-validate/elements.json").items():
            if self.is_omitted(element):
                continue
            self.assertLessEqual(told.get("deprecated", False), self.html[element][0], element)
            for name, attribute in told["attributes"].items():
                if not self.is_omitted(element, name):
                    with self.subTest(element=element, attribute=name):
                        self.check_attribute(element, name, attribute)

    def check_attribute(self, element, name, told):
        deprecated, forms, values = self.html[element][1][name]
        self.assertLessEqual(told.get("deprecated", False), deprecated)
        if told.get("boolean"):
            self.assertEqual(forms, {""})
        self.assertLessEqual(set(told.get("values", [])), set(values))

    def test_settled_elements_and_attributes_of_browsers_are_known(self):
        def settled(feature):
            return feature.get("deprecated") or not (feature.get("experimental") or feature.get("nonstandard"))

        for element, told in source("browser-compat-data/html.json")["elements"].items():
            if not settled(told) or self.is_omitted(element):
                continue
            self.assertLessEqual(told.get("deprecated", False), self.html[element][0], element)
            for name, feature in told.get("features", {}).items():
                if settled(feature) and "_" not in name and not self.is_omitted(element, name):
                    with self.subTest(element=element, attribute=name):
                        deprecated, _, _ = self.html[element][1][name]
                        self.assertLessEqual(feature.get("deprecated", False), deprecated)

    def test_no_attribute_of_an_obsolete_element_alone_is_called_current(self):
        for element, (deprecated, attributes) in self.html.items():
            if deprecated:
                own = set(attributes) - set(self.html["div"][1]) - set(self.html["body"][1])
                self.assertEqual([name for name in own if not attributes[name][0]], [], element)

    def test_every_element_has_the_events_of_all(self):
        told = source("webref-idl/eventHandlers.json")["html"]
        self.assertEqual(len(told["GlobalEventHandlers"]), 76)
        ours = {name for name in told["GlobalEventHandlers"] if not name.startswith("onwebkit")}
        for element, (_, attributes) in self.html.items():
            if element != "!doctype":
                self.assertLessEqual(ours, set(attributes), element)
        self.assertLessEqual(set(told["WindowEventHandlers"]), set(self.html["body"][1]))

    def test_every_property_stands_once(self):
        told = source("mdn-data/css.json")["properties"]
        lines = (generate.DATA / "Css.tcb").read_bytes().decode("cp1252").split("\r\n")
        found = [line[1:] for line in lines if re.match("»[^»]", line)]
        self.assertEqual(sorted(found), sorted(set(told) - {"--*"}))


class OwnTablesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.joiner = Joiner()
        cls.elements = {element.name: element for element in cls.joiner.elements()}

    def attributes(self, element):
        if element == "*":
            return {attribute.name for each in self.elements.values() for attribute in each.attributes}
        return {attribute.name for attribute in self.elements[element].attributes}

    def test_every_element_and_attribute_has_its_words(self):
        for element in self.elements.values():
            self.assertRegex(element.sentence, r"^[A-Z][^.]*(\.[^ .][^.]*)*\.$", element.name)  # one sentence
            self.assertIn("<" + element.name, element.example)
            for attribute in element.attributes:
                self.assertTrue(attribute.meaning, f"{element.name} {attribute.name}")

    def test_no_words_are_for_nothing(self):
        self.assertEqual(self.joiner.words.unused(), [])
        self.assertEqual({name for name, *_ in rows("elements.txt")}, set(self.elements))
        for elements, attributes, *_ in (row for row in rows("values.txt") if not row[0].startswith("@")):
            for element in names(elements):
                self.assertLessEqual(set(names(attributes)), self.attributes(element), element)
        for elements, attributes in rows("additions.txt"):
            for element in names(elements):
                added = {unmarked(word)[0].removesuffix("=") for word in attributes.split()}
                self.assertLessEqual(added, self.attributes(element), element)
        for _, elements, _ in rows("exceptions.txt"):
            self.assertLessEqual(set(elements.split()), set(self.elements))


class GeneratorTest(unittest.TestCase):
    def test_data_is_what_the_sources_give(self):
        self.assertEqual(generate.differences(generate.files()), [])

    def test_differences_are_told(self):
        wanted = generate.files()
        page = "help/topics/reference/Tag_A.htm"
        wanted["Html.tcb"] += b"\xbbnew\r\n"
        wanted["help/topics/reference/Tag_NEW.htm"] = b""
        del wanted[page]
        self.assertEqual(
            generate.differences(wanted),
            [f"left over: {page}", "other: Html.tcb", "missing: help/topics/reference/Tag_NEW.htm"],
        )


if __name__ == "__main__":
    unittest.main()
