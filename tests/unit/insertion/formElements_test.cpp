#include "insertion/frmFormButton.h"
#include "insertion/frmFormCheck.h"
#include "insertion/frmFormField.h"
#include "insertion/frmFormHidden.h"
#include "insertion/frmFormMenu.h"
#include "insertion/frmFormRadioButton.h"
#include "insertion/frmFormTextArea.h"
#include "insertion/frmFormTextbox.h"
#include "markupReader.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

template <class Fields>
struct Row {
    Fields fields;
    const char *text;
};
} // namespace

TEST(TextboxMarkup, eachFieldGivesItsAttribute)
{
    const Row<TextboxFields> rows[] = {
        {{}, "<input type=\"text\">"},
        {{.password = true}, "<input type=\"password\">"},
        {{.name = str("n")}, "<input type=\"text\" name=\"n\">"},
        {{.value = str("a \"b\" <c> & d")}, "<input type=\"text\" value=\"a \"b\" <c> & d\">"},
        {{.size = str("0")}, "<input type=\"text\" size=\"0\">"},
        {{.maxLength = str("007")}, "<input type=\"text\" maxlength=\"007\">"},
        {{.name = str("n"), .value = str("v"), .size = str("1"), .maxLength = str("2"), .password = true},
         "<input type=\"password\" name=\"n\" value=\"v\" size=\"1\" maxlength=\"2\">"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textboxMarkup(row.fields), str(row.text));
}

TEST(TextAreaMarkup, eachFieldGivesItsAttribute)
{
    const Row<TextAreaFields> rows[] = {
        {{}, "<textarea></textarea>"},
        {{.name = str("n")}, "<textarea name=\"n\"></textarea>"},
        {{.rows = str("3")}, "<textarea rows=\"3\"></textarea>"},
        {{.columns = str("0")}, "<textarea cols=\"0\"></textarea>"},
        {{.value = str("one\r\n<two>")}, "<textarea>one\r\n<two></textarea>"},
        {{.name = str("n"), .rows = str("3"), .columns = str("40"), .value = str(" ")},
         "<textarea name=\"n\" rows=\"3\" cols=\"40\"> </textarea>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textAreaMarkup(row.fields), str(row.text));
}

TEST(CheckMarkup, eachFieldGivesItsAttribute)
{
    const Row<CheckFields> rows[] = {
        {{}, "<input type=\"checkbox\">"},
        {{.name = str("n")}, "<input type=\"checkbox\" name=\"n\">"},
        {{.value = str("v")}, "<input type=\"checkbox\" value=\"v\">"},
        {{.checked = true}, "<input type=\"checkbox\" checked>"},
        {{.name = str("n"), .value = str("v"), .checked = true},
         "<input type=\"checkbox\" name=\"n\" checked value=\"v\">"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(checkMarkup(row.fields), str(row.text));
}

TEST(RadioMarkup, itsCaptionOrElseItsValueFollowsTheTag)
{
    const Row<RadioFields> rows[] = {
        {{}, "<input type=\"radio\">"},
        {{.group = str("g")}, "<input type=\"radio\" name=\"g\">"},
        {{.value = str("v")}, "<input type=\"radio\" value=\"v\">v"},
        {{.caption = str("Yes")}, "<input type=\"radio\">Yes"},
        {{.selected = true}, "<input type=\"radio\" checked>"},
        {{.group = str("g"), .value = str("v"), .caption = str("<b>Yes</b>"), .selected = true},
         "<input type=\"radio\" name=\"g\" checked value=\"v\"><b>Yes</b>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(radioMarkup(row.fields), str(row.text));
}

TEST(RadioGroups, areReadFromTheTagsInTheirExactSpelling)
{
    const struct {
        const char *what;
        const char *page;
        QStringList groups;
    } rows[] = {
        {"no tag", "<p>", {}},
        {"quoted type", "<input type=\"radio\" name=\"a\">", {str("a")}},
        {"plain type", "<input name=\"a\" type=radio>", {str("a")}},
        {"another case of the tag", "<INPUT type=\"radio\" name=\"a\">", {}},
        {"another case of the type", "<input type=\"Radio\" name=\"a\">", {}},
        {"single quotes", "<input type='radio' name=\"a\">", {}},
        {"another type", "<input type=\"text\" name=\"a\">", {}},
        {"no name in double quotes is passed over, and the next one counts",
         "<input type=\"radio\" name=a><input type=\"radio\" name=\"b\">",
         {str("b")}},
        {"an empty name", "<input type=\"radio\" name=\"\">", {QString()}},
        {"a name twice",
         "<input type=radio name=\"b\"><input type=radio name=\"a\"><input type=radio name=\"b\">",
         {str("b"), str("a")}},
        {"a tag without an end", "<input type=\"radio\" name=\"a\"", {}},
        {"a bracket in the name ends the tag, not the name", "<input type=\"radio\" name=\"a>b\">", {str("a>b")}},
        {"the name of another tag does not count", "<input type=\"radio\"><input name=\"a\">", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(radioGroups(str(row.page)), row.groups) << row.what;
}

TEST(RadioGroups, endWithTheHundredthTag)
{
    const QString text = str("<input type=\"text\">").repeated(99);
    const QString radios = str("<input type=radio name=\"last\"><input type=radio name=\"none\">");
    EXPECT_EQ(radioGroups(text + radios), QStringList{str("last")});
}

TEST(ButtonMarkup, knowsThreeKinds)
{
    const Row<ButtonFields> rows[] = {
        {{.type = str("Submit Button")}, "<input type=\"submit\">"},
        {{.type = str("Reset Button")}, "<input type=\"reset\">"},
        {{.type = str("Normal Button")}, "<input type=\"button\">"},
        {{.type = str("submit button")}, "<input type=\"button\">"},
        {{.type = str("Submit Button"), .name = str("n")}, "<input type=\"submit\" name=\"n\">"},
        {{.type = str("Reset Button"), .name = str("n"), .value = str("v")},
         "<input type=\"reset\" name=\"n\" value=\"v\">"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(buttonMarkup(row.fields), str(row.text));
    EXPECT_EQ(buttonTypes(), QStringList({str("Submit Button"), str("Normal Button"), str("Reset Button")}));
}

TEST(FormMarkup, hasNothingInIt)
{
    const Row<FormFields> rows[] = {
        {{}, "<form></form>"},
        {{.name = str("n")}, "<form name=\"n\"></form>"},
        {{.action = str("a?b&c")}, "<form action=\"a?b&c\"></form>"},
        {{.method = str("put")}, "<form method=\"put\"></form>"},
        {{.name = str("n"), .action = str("a"), .method = str("get")},
         "<form name=\"n\" action=\"a\" method=\"get\"></form>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(formMarkup(row.fields), str(row.text));
}

TEST(HiddenFieldMarkup, eachFieldGivesItsAttribute)
{
    EXPECT_EQ(hiddenFieldMarkup({}, {}), str("<input type=\"hidden\">"));
    EXPECT_EQ(hiddenFieldMarkup(str("n"), {}), str("<input type=\"hidden\" name=\"n\">"));
    EXPECT_EQ(hiddenFieldMarkup({}, str("v")), str("<input type=\"hidden\" value=\"v\">"));
    EXPECT_EQ(hiddenFieldMarkup(str("n"), str("v")), str("<input type=\"hidden\" name=\"n\" value=\"v\">"));
}

TEST(SelectMarkup, eachFieldGivesItsAttribute)
{
    const Row<SelectFields> rows[] = {
        {{}, "<select size=\"1\">\r\n</select>"},
        {{.name = str("n")}, "<select name = \"n\" size=\"1\">\r\n</select>"},
        {{.name = str("50%1")}, "<select name = \"50%1\" size=\"1\">\r\n</select>"},
        {{.height = str("0")}, "<select size=\"0\">\r\n</select>"},
        {{.height = {}}, "<select size=\"\">\r\n</select>"},
        {{.multiple = true}, "<select multiple size=\"1\">\r\n</select>"},
        {{.comboBox = true}, "<select>\r\n</select>"},
        {{.name = str("n"), .multiple = true, .comboBox = true}, "<select name = \"n\" multiple>\r\n</select>"},
        {{.comboBox = true, .options = {{.name = str("One")}, {.name = str("Two"), .value = str("2")}}},
         "<select>\r\n    <option>One</option>\r\n    <option value=\"2\">Two</option>\r\n</select>"},
        {{.comboBox = true, .options = {{.name = str("A"), .value = str("a"), .selected = true}}},
         "<select>\r\n    <option selected value=\"a\">A</option>\r\n</select>"},
        {{.comboBox = true, .options = {{.name = str("A"), .selected = true}}},
         "<select>\r\n    <option selected>A</option>\r\n</select>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(selectMarkup(row.fields), str(row.text));
}

namespace
{
SelectFields randomSelect(QRandomGenerator &random)
{
    SelectFields fields{.name = randomWords(random),
                        .height = QString::number(random.bounded(20)),
                        .multiple = random.bounded(2) == 1,
                        .comboBox = random.bounded(2) == 1,
                        .options = {}};
    for (int options = random.bounded(8); options > 0; --options)
        fields.options.append(
            {.name = randomWords(random), .value = randomWords(random), .selected = random.bounded(2) == 1});
    return fields;
}
} // namespace

TEST(SelectMarkup, aRandomListReadsBackAsItsFields)
{
    QRandomGenerator random(66);
    for (int i = 0; i < 500; ++i) {
        const SelectFields fields = randomSelect(random);
        const QString text = selectMarkup(fields);
        const QList<ReadElement> elements = elementsOf(text);
        ASSERT_EQ(elements.size(), fields.options.size() + 1);
        EXPECT_EQ(elements[0].attributes.contains(str("multiple")), fields.multiple);
        EXPECT_EQ(elements[0].attributes.value(str("size")), fields.comboBox ? QString() : fields.height);
        for (int option = 0; option < fields.options.size(); ++option) {
            const ReadElement &read = elements[option + 1];
            EXPECT_EQ(read.name, str("option"));
            EXPECT_EQ(read.attributes.value(str("value")), fields.options[option].value);
            EXPECT_EQ(read.attributes.contains(str("selected")), fields.options[option].selected);
            EXPECT_EQ(text.mid(read.end, text.indexOf(str("</option>"), read.end) - read.end),
                      fields.options[option].name);
        }
    }
}
