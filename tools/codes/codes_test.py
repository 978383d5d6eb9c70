"""Checks the generator's parts by hand-made pieces, and data/ against the sources, read here by other code."""

import re
import unittest

import generate
import innerElements
import tcb
from cssGrammar import Grammar
from dtd import Definition
from knowledge import ONLY, OWN, Attribute, Element, Joiner
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


    def test_names_the_measures_and_leaves_them_apart_from_words(self):
        grammar = Grammar({"it": "auto | <length [0,∞]> | <share> | f( <time> )"}, {"share": "<percentage> | <length>"}, {},
                          {"length": [], "percentage": [], "time": []})  # fmt: skip
        found = grammar.of("it")
        self.assertEqual(list(found.measures), ["length", "percentage"])
        self.assertEqual(found.in_order(["0", "auto"]), ["auto", "0", "f()"])


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


def read_css():
    """{property: its values} of data/Css.tcb."""
    found = {}
    for line in (generate.DATA / "Css.tcb").read_bytes().decode("cp1252").split("\r\n")[:-1]:
        if line.startswith("»»"):
            values.append(line[2:])
        else:
            found[line[1:]] = values = []
    return found


class SourcesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.html = read_html()
        cls.only_ours = {(cells[0], cells[1]) for cells in rows("values.txt") if ONLY in cells}
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
            self.assertEqual(forms, {"", "="})
            self.assertIn(name, values)
        if told.get("omit"):
            self.assertEqual(forms, {"", "="})
        if (element, name) not in self.only_ours:
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
                of_formulas = self.html["math"][1] if element.startswith("math>") else ()
                own = set(attributes) - set(self.html["div"][1]) - set(self.html["body"][1]) - set(of_formulas)
                self.assertEqual([name for name in own if not attributes[name][0]], [], element)

    def test_every_element_has_the_events_of_all(self):
        told = source("webref-idl/eventHandlers.json")["html"]
        self.assertEqual(len(told["GlobalEventHandlers"]), 76)
        ours = {name for name in told["GlobalEventHandlers"] if not name.startswith("onwebkit")}
        for element, (_, attributes) in self.html.items():
            if element != "!doctype" and ">" not in element:
                self.assertLessEqual(ours, set(attributes), element)
        self.assertLessEqual(set(told["WindowEventHandlers"]), set(self.html["body"][1]))

    def test_properties_are_those_that_browsers_know_and_each_stands_once(self):
        told = set(source("mdn-data/css.json")["properties"]) - {"--*"}
        browsers = source("browser-compat-data/css.json")["names"]
        expected = told & set(browsers) | {"grid-gap", "grid-column-gap", "grid-row-gap"}
        expected |= {name for name, of in browsers.items() if name.startswith("-") and of in told}
        found = list(read_css())
        self.assertEqual(sorted(found), sorted(expected - {"ime-mode"}))
        for dead in ("box-align", "box-orient", "align-tracks", "scroll-snap-points-x", "ime-mode", "-ms-filter",
                     "-moz-outline-radius", "-ms-scroll-rails"):  # fmt: skip
            self.assertNotIn(dead, found)
        for living in ("-webkit-background-clip", "-webkit-box-orient", "-webkit-text-size-adjust",
                       "-webkit-backdrop-filter", "-webkit-user-select", "-webkit-line-clamp"):  # fmt: skip
            self.assertIn(living, found)

    def test_measures_and_functions_stand_beside_words(self):
        found = read_css()
        self.assertEqual(found["z-index"][:3], ["auto", "0", "1"])
        hundreds = [str(number) for number in range(100, 1000, 100)]
        self.assertEqual(found["font-weight"][:14], ["normal", "bold", "bolder", "lighter"] + hundreds + ["calc()"])
        for name, values in {"width": ["1px", "100%", "calc()", "clamp()", "min()", "max()", "env()"],
                             "animation-duration": ["1s", "calc()"], "rotate": ["45deg"]}.items():  # fmt: skip
            self.assertLessEqual(set(values), set(found[name]), name)
        self.assertNotIn("env()", found["z-index"])
        self.assertNotIn("calc()", found["display"])
        for name, values in found.items():
            self.assertIn("var()", values, name)
            self.assertFalse({"inline-list-item", "run-in", "element()", "paint()"} & set(values), name)


class OrderTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.html = read_html()

    def names(self, element):
        return list(self.html[element][1])

    def test_deprecated_elements_and_attributes_stand_last(self):
        marks = [deprecated for deprecated, _ in self.html.values()]
        self.assertEqual(marks, sorted(marks))
        for element, (_, attributes) in self.html.items():
            marks = [deprecated for deprecated, *_ in attributes.values()]
            self.assertEqual(marks, sorted(marks), element)

    def test_what_is_typed_finds_the_element_in_use_first(self):
        rows = {"bl": "blockquote", "fo": "footer", "r": "rp", "sp": "span", "st": "strong", "ta": "table", "c": "canvas"}
        for typed, expected in rows.items():
            self.assertEqual(next(name for name in self.html if name.startswith(typed)), expected)

    def test_own_attributes_stand_first_and_by_their_use(self):
        rows = {
            "a": ["href", "target", "rel"],
            "img": ["src", "alt", "width", "height"],
            "input": ["type", "name", "value"],
            "td": ["colspan", "rowspan", "headers", "accesskey"],
        }
        for element, expected in rows.items():
            self.assertEqual(self.names(element)[: len(expected)], expected)
        rest = self.names("img")[self.names("img").index("sizes") + 1 : self.names("img").index("accesskey")]
        self.assertEqual(rest, sorted(rest))

    def test_flags_and_attributes_that_may_be_bare_have_both_forms(self):
        for element, name in (("input", "disabled"), ("td", "nowrap"), ("div", "inert")):
            self.assertEqual(self.html[element][1][name][1:], ({"", "="}, {name: False}))
        for element, name in (
            ("div", "autocorrect"), ("div", "translate"), ("div", "writingsuggestions"), ("dialog", "closedby"),
            ("img", "fetchpriority"), ("img", "loading"), ("track", "kind"), ("img", "alt"), ("option", "value"),
        ):  # fmt: skip
            self.assertEqual(self.html[element][1][name][1], {"", "="}, name)
        self.assertEqual(self.html["!doctype"][1]["public"][1], {""})

    def test_values_are_those_of_today(self):
        rows = {
            ("link", "as"): "font image script style fetch track json text".split(),
            ("script", "type"): ["application/json", "application/ld+json"],
            ("source", "type"): ["audio/aac", "audio/mp4"],
            ("iframe", "sandbox"): ["allow-storage-access-by-user-activation"],
            ("iframe", "allow"): ["accelerometer", "clipboard-write"],
            ("div", "role"): ["doc-footnote", "mark", "suggestion", "doc-toc"],
            ("meta", "name"): ["viewport", "description", "theme-color", "twitter:card"],
        }
        for (element, name), expected in rows.items():
            self.assertLessEqual(set(expected), set(self.html[element][1][name][2]))
        self.assertNotIn("document", self.html["link"][1]["as"][2])


class InnerElementsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.html = read_html()
        cls.inner = innerElements.elements(Joiner().elements())

    def test_all_that_the_source_has_stands_under_its_entry(self):
        for entry, name, count in (("svg", "svg", 63), ("math", "mathml", 33)):
            told = source(f"browser-compat-data/{name}.json")["elements"]
            self.assertEqual(len(told), count)
            for element, feature in told.items():
                deprecated, attributes = self.html[entry if element == entry else f"{entry}>{element}"]
                self.assertEqual(deprecated, feature.get("deprecated", False), element)
                for attribute, standing in feature.get("features", {}).items():
                    unsettled = standing.get("experimental") or standing.get("nonstandard")
                    name = attribute.replace("xlink_", "xlink:")
                    if "_" in name or name == "svgView" or (unsettled and not standing.get("deprecated")):
                        continue
                    self.assertTrue(name in attributes, f"{element} {name}")
                    self.assertLessEqual(standing.get("deprecated", False), attributes[name][0], f"{element} {name}")

    def test_each_has_what_it_is_drawn_with_behind_its_own(self):
        names_of = {element: list(told[1]) for element, told in self.html.items()}
        self.assertEqual(names_of["svg>circle"][:5], ["cx", "cy", "pathLength", "r", "systemLanguage"])
        for element in ("svg", "svg>g", "svg>path", "svg>text"):
            self.assertLessEqual({"fill", "stroke", "stroke-width", "transform", "class", "id"}, set(names_of[element]))
        self.assertNotIn("stroke", names_of["svg>feTile"])
        self.assertIn("freeze", self.html["svg>animate"][1]["fill"][2])
        self.assertIn("none", self.html["svg>rect"][1]["fill"][2])
        self.assertLessEqual({"displaystyle", "scriptlevel"}, set(names_of["math>mfrac"]) & set(names_of["math"]))

    def test_its_tables_hold_nothing_for_nothing(self):
        words = innerElements.Words()
        known = {(element.under, element.name): element for element in self.inner}
        self.assertEqual({(under, name) for under, name, _ in rows("innerElements.txt")}, set(known))
        every = {name for _, name in known} | {"math", "svg"}
        for cells in rows("innerAdditions.txt") + rows("innerExceptions.txt"):
            self.assertLessEqual(set(names(cells[0])) - {"svg *"}, every)
        html = Joiner().elements()
        told = {(under, name): sentence for under, name, sentence in rows("innerElements.txt")}
        for entry in (element for element in html if element.name in innerElements.SOURCES):
            language = innerElements.Language(entry, words)
            language.entry(), language.elements(told)
        self.assertEqual(words.unused(), [])

    def test_each_has_a_sentence_and_each_attribute_its_words(self):
        of_html = {element.name for element in Joiner().elements()}
        for element in self.inner:
            pattern = r"^$" if element.name in of_html else r"^[A-Z][^.]*\.$"
            self.assertRegex(element.sentence, pattern, element.name)
            self.assertTrue(all(attribute.meaning for attribute in element.attributes), element.name)
            written = [attribute.name for attribute in element.attributes]
            self.assertEqual(len(written), len(set(written)), element.name)


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
        for elements, attributes in rows("order.txt"):
            for element in names(elements):
                own = {attribute.name for attribute in self.elements[element].own()}
                self.assertLessEqual(set(attributes.split()), own, element)

    def test_deprecated_elements_tell_what_to_use_instead_and_the_others_how_they_are_used(self):
        deprecated = {name for name, element in self.elements.items() if element.deprecated}
        self.assertEqual({name for name, _ in rows("instead.txt")}, deprecated)
        told = {name for first, *_ in rows("models.txt") if not first.startswith("@") for name in names(first)}
        self.assertEqual(told, set(self.elements) - deprecated)

    def test_every_element_sees_others(self):
        for element in self.elements.values():
            self.assertTrue(element.related, element.name)
            self.assertLessEqual(set(element.related), set(self.elements) - {element.name})
        self.assertEqual(self.elements["video"].related, ["source", "track", "audio"])

    def test_what_must_be_there_are_attributes_of_the_element(self):
        for element in self.elements.values():
            for name in re.findall(r"\b(?:alt|src|srcset|href|dir|rel|value|label|srclang|name|content)\b", element.demands):
                self.assertIn(name, {attribute.name for attribute in element.attributes} | {"imagesrcset"}, element.name)


class PagesTest(unittest.TestCase):
    def page(self, name):
        return (generate.DATA / "help/topics/reference" / name).read_text(encoding="utf-8")

    def test_syntax_is_the_elements_own(self):
        line = re.search(r'<p class="syntax"><code>(.*)</code>', self.page("Tag_IMG.htm"))[1]
        self.assertTrue(line.startswith("&lt;img src=[URL] alt alt=[Text] width=[Pixels] height=[Pixels] "), line)
        self.assertTrue(line.endswith(" ismap referrerpolicy= usemap=[#Name]&gt;"), line)

    def test_deprecated_elements_say_what_to_use(self):
        self.assertIn('Write <a href="Tag_ABBR.htm"><code>&lt;abbr&gt;</code></a> instead', self.page("Tag_ACRONYM.htm"))

    def test_use_is_told(self):
        page = self.page("Tag_LI.htm")
        self.assertIn('<th align="left" valign="top">It may stand</th><td valign="top">in <a href="Tag_OL.htm">', page)
        self.assertIn("the end tag may be left out before another li", page)

    def test_measures_are_told_in_words(self):
        page = self.page("Css_Z.htm")
        row = re.search(r"<code>z-index:</code>.*?</tr>", page)[0]
        self.assertIn("a whole number", row)
        self.assertIn("the same as background-clip", self.page("Css_Prefixed.htm"))

    def test_events_of_the_page_stand_apart(self):
        every, body = self.page("EventAttributes.htm").split("can stand on <a href", 1)
        self.assertIn("<code>onclick=</code>", every)
        self.assertNotIn("<code>onbeforeunload=</code>", every)
        self.assertIn("<code>onbeforeunload=</code>", body)
        self.assertEqual(body.count("<code>on"), 18)


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
