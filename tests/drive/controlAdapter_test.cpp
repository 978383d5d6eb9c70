#include "testFormFixture.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>

namespace drive
{
using testing::Contains;
using testing::ElementsAre;

#define EXPECT_DONE(act)                                                                                               \
    do {                                                                                                               \
        const ActionResult result = (act);                                                                             \
        EXPECT_TRUE(result.done) << result.reason.toStdString();                                                       \
    } while (false)

void expectRefused(const ActionResult &result, const char *reason)
{
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.reason.contains(str(reason))) << result.reason.toStdString();
}

class ControlAdapter : public TestFormTest
{
};

TEST_F(ControlAdapter, ReplacesATextByKeysAndLeavesTheCaretBehindIt)
{
    EXPECT_DONE(setValue(control("txtText"), str("old")));
    events();
    EXPECT_DONE(setValue(control("txtText"), str("aé😀")));
    EXPECT_EQ(read("txtText", "Text"), str("aé😀"));
    EXPECT_EQ(read("txtText", "SelStart"), str("4"));
    EXPECT_EQ(read("txtText", "SelLength"), str("0"));
    EXPECT_EQ(read("txtText", "Focus"), str("True"));
    EXPECT_EQ(deeds().count(str("txtText Change")), 3) << "each key is a change";
}

TEST_F(ControlAdapter, EmptiesAText)
{
    EXPECT_DONE(setValue(control("txtText"), str("old")));
    EXPECT_DONE(setValue(control("txtText"), QString()));
    EXPECT_EQ(read("txtText", "Text"), QString());
}

TEST_F(ControlAdapter, LetsANumberFieldRefuseLettersAndCutItsLength)
{
    EXPECT_DONE(setValue(control("txtNumber"), str("1a2b34")));
    EXPECT_EQ(read("txtNumber", "Text"), str("123"));
    EXPECT_EQ(read("txtNumber", "MaxLength"), str("3"));
}

TEST_F(ControlAdapter, CountsWithASpinButtonsArrows)
{
    EXPECT_DONE(setValue(control("txtNumber"), str("5")));
    EXPECT_DONE(setValue(control("updNumber"), str("8")));
    EXPECT_EQ(read("txtNumber", "Text"), str("8"));
    EXPECT_EQ(read("updNumber", "Value"), str("8"));
    EXPECT_EQ(read("updNumber", "Min"), str("1"));
    EXPECT_EQ(read("updNumber", "Max"), str("20"));
    expectRefused(setValue(control("updNumber"), str("21")), "from 1 to 20");
}

TEST_F(ControlAdapter, EntersWholeBreaksIntoATextArea)
{
    EXPECT_DONE(setValue(control("txtArea"), str("one\r\ntwo\tx")));
    EXPECT_EQ(read("txtArea", "Text"), str("one\r\ntwo\tx"));
    EXPECT_EQ(read("txtArea", "SelStart"), str("10"));
    auto &area = static_cast<QPlainTextEdit &>(control("txtArea"));
    QTextCursor cursor = area.textCursor();
    cursor.setPosition(2);
    cursor.setPosition(5, QTextCursor::KeepAnchor);
    area.setTextCursor(cursor);
    EXPECT_EQ(read("txtArea", "SelStart"), str("2"));
    EXPECT_EQ(read("txtArea", "SelLength"), str("4")) << "the break counts as two";
    EXPECT_EQ(read("txtArea", "SelText"), str("e\r\nt"));
}

TEST_F(ControlAdapter, EntersAndReadsTheEditSurface)
{
    EXPECT_DONE(setValue(control("txtEdit"), str("<p>\r\n</p>")));
    EXPECT_EQ(read("txtEdit", "Text"), str("<p>\r\n</p>"));
    EXPECT_EQ(read("txtEdit", "SelStart"), str("9"));
    EXPECT_EQ(read("txtEdit", "FirstVisibleLine"), str("0"));
    EXPECT_THAT(deeds(), Contains(str("txtEdit Change")));
}

TEST_F(ControlAdapter, TypesAColourOrTakesItFromTheDialog)
{
    EXPECT_DONE(setValue(control("clrColour"), str("#ff8000")));
    EXPECT_EQ(read("clrColour", "HexadecimalColour"), str("#FF8000"));
    dialogs.colour = 0xFF0000;
    EXPECT_DONE(click(control("clrColour")));
    EXPECT_EQ(read("clrColour", "HexadecimalColour"), str("#0000FF"));
    EXPECT_EQ(deeds().count(str("clrColour Change")), 2);
}

TEST_F(ControlAdapter, TypesIntoAnEditableComboOrPicksFromItsList)
{
    EXPECT_DONE(setValue(control("cboEdit"), str("thr")));
    EXPECT_EQ(read("cboEdit", "Text"), str("thr"));
    EXPECT_THAT(deeds(), testing::Not(Contains(str("cboEdit Click"))));
    EXPECT_DONE(pick(control("cboEdit"), str("two")));
    EXPECT_EQ(read("cboEdit", "Text"), str("two"));
    EXPECT_EQ(read("cboEdit", "ListIndex"), str("1"));
    EXPECT_EQ(read("cboEdit", "ListCount"), str("3"));
    EXPECT_EQ(read("cboEdit", "List(2)"), str("three"));
    EXPECT_EQ(deeds().count(str("cboEdit Click")), 1);
}

TEST_F(ControlAdapter, RefusesWhatAUserCannotReach)
{
    expectRefused(setValue(control("txtDisabled"), str("x")), "enabled");
    expectRefused(click(control("txtHidden")), "visible");
    expectRefused(setValue(control("lstSingle"), str("Arial")), "visible"); // on another page
    expectRefused(setValue(control("txtEvents"), str("x")), "locked");
    expectRefused(setValue(control("lblNumber"), str("x")), "no value");
    expectRefused(focus(control("lblNumber")), "no focus");
    expectRefused(click(control("tmrTick")), "press");
    EXPECT_EQ(read("txtDisabled", "Enabled"), str("False"));
    EXPECT_EQ(read("txtHidden", "Visible"), str("False"));
    EXPECT_EQ(read("lstSingle", "Visible"), str("False"));
}

TEST_F(ControlAdapter, ClicksAButtonAndMovesTheFocusThere)
{
    EXPECT_DONE(setValue(control("txtText"), str("x")));
    events();
    EXPECT_DONE(click(control("cmdOK")));
    EXPECT_THAT(events(), ElementsAre(str("txtText LostFocus"), str("cmdOK GotFocus"), str("cmdOK Click")));
    EXPECT_EQ(read("cmdOK", "Caption"), str("&OK"));
}

TEST_F(ControlAdapter, PicksRowsOfLists)
{
    turnTo("&Lists");
    events();
    EXPECT_DONE(pick(control("lstSingle"), str("Courier")));
    EXPECT_EQ(read("lstSingle", "ListIndex"), str("1"));
    EXPECT_EQ(read("lstSingle", "Text"), str("Courier"));
    EXPECT_DONE(pick(control("lstSingle"), str("0")));
    EXPECT_EQ(read("lstSingle", "Text"), str("Arial"));
    EXPECT_DONE(dblpick(control("lstSingle"), str("Times")));
    EXPECT_THAT(deeds(), ElementsAre(str("lstSingle Click"), str("lstSingle Click"), str("lstSingle Click"),
                                     str("lstSingle DblClick")));
    expectRefused(pick(control("lstSingle"), str("Verdana")), "\"Arial\", \"Courier\", \"Times\"");
}

TEST_F(ControlAdapter, TakesRowsIntoAndOutOfASelection)
{
    turnTo("1");
    EXPECT_DONE(pick(control("lstMulti"), str("first"), true));
    EXPECT_DONE(pick(control("lstMulti"), str("third"), true));
    EXPECT_DONE(pick(control("lstMulti"), str("first"), false));
    EXPECT_DONE(pick(control("lstMulti"), str("fourth"), true));
    EXPECT_DONE(pick(control("lstMulti"), str("fourth"), true));
    EXPECT_EQ(read("lstMulti", "Selected(0)"), str("False"));
    EXPECT_EQ(read("lstMulti", "Selected(2)"), str("True"));
    EXPECT_EQ(read("lstMulti", "Selected(3)"), str("True"));
    EXPECT_DONE(pick(control("lstMulti"), str("second")));
    EXPECT_EQ(read("lstMulti", "Selected(2)"), str("False"));
}

TEST_F(ControlAdapter, TurnsTicks)
{
    turnTo("1");
    EXPECT_EQ(read("lstTicks", "Ticked(0)"), str("True"));
    EXPECT_DONE(tick(control("lstTicks"), str("Word-wrap text"), true));
    EXPECT_DONE(tick(control("lstTicks"), str("0"), false));
    EXPECT_DONE(tick(control("lstTicks"), str("0"), false)); // so already
    EXPECT_EQ(read("lstTicks", "Ticked(0)"), str("False"));
    EXPECT_EQ(read("lstTicks", "Ticked(1)"), str("True"));
    EXPECT_THAT(deeds(), testing::IsSupersetOf({str("lstTicks Tick 1"), str("lstTicks Tick 0")}));
    expectRefused(tick(control("lstSingle"), str("0"), true), "no ticks");
}

TEST_F(ControlAdapter, ReadsAndWorksAListView)
{
    turnTo("1");
    EXPECT_EQ(read("lvwRows", "ListCount"), str("2"));
    EXPECT_EQ(read("lvwRows", "Key(1)"), str("/site/b.gif"));
    EXPECT_EQ(read("lvwRows", "List(1)"), str("b.gif"));
    EXPECT_EQ(read("lvwRows", "SubItem(1,1)"), str("12KB"));
    EXPECT_EQ(read("lvwRows", "SubItem(1,2)"), str("Other File"));
    EXPECT_EQ(readProperty(control("lvwRows"), str("SubItem(1,3)")), str(""));
    EXPECT_EQ(readProperty(control("lvwRows"), str("List(2)")), std::nullopt);
    EXPECT_EQ(read("lvwRows", "ListIndex"), str("-1"));
    events();
    EXPECT_DONE(pick(control("lvwRows"), str("/site/b.gif")));
    EXPECT_EQ(read("lvwRows", "ListIndex"), str("1"));
    EXPECT_DONE(dblpick(control("lvwRows"), str("a.htm")));
    EXPECT_DONE(tick(control("lvwRows"), str("a.htm"), false));
    EXPECT_EQ(read("lvwRows", "Ticked(0)"), str("False"));
    EXPECT_THAT(deeds(), ElementsAre(str("lvwRows Selection"), str("lvwRows Selection"), str("lvwRows DblClick 0"),
                                     str("lvwRows Tick 0")));
}

TEST_F(ControlAdapter, FindsNodesByTheirWay)
{
    turnTo("2");
    EXPECT_EQ(read("treNodes", "NodeCount"), str("6"));
    EXPECT_EQ(read("treNodes", "Node(2)"), str("href="));
    EXPECT_EQ(read("treNodes", "NodeKey(0)"), str("html"));
    EXPECT_EQ(read("treNodes", "NodeKey(1)"), QString());
    EXPECT_EQ(read("treNodes", "NodeImage(2)"), str("Value"));
    EXPECT_EQ(read("treNodes", "NodeParent(2)"), str("1"));
    EXPECT_EQ(read("treNodes", "NodeParent(4)"), str("-1"));
    events();
    EXPECT_DONE(node(control("treNodes"), str("HyperText>a>href="), NodeAction::Click));
    EXPECT_EQ(read("treNodes", "NodeSelected(2)"), str("True"));
    EXPECT_EQ(read("treNodes", "NodeExpanded(1)"), str("True"));
    EXPECT_DONE(node(control("treNodes"), str("HyperText>b\\>c"), NodeAction::Enter));
    EXPECT_DONE(node(control("treNodes"), str("#5"), NodeAction::DoubleClick));
    EXPECT_THAT(deeds(), ElementsAre(str("treNodes NodeClick 2"), str("treNodes Enter 3"), str("treNodes NodeClick 5"),
                                     str("treNodes DblClick 5")));
    expectRefused(node(control("treNodes"), str("HyperText>img"), NodeAction::Click), "\"img\"");
}

TEST_F(ControlAdapter, PicksKeyedTabs)
{
    turnTo("2");
    EXPECT_EQ(read("tabKeyed", "TabCount"), str("3"));
    EXPECT_EQ(read("tabKeyed", "Tab(1)"), str("R&D.htm"));
    EXPECT_EQ(read("tabKeyed", "Key(1)"), str("2Key"));
    events();
    EXPECT_DONE(pick(control("tabKeyed"), str("R&D.htm")));
    EXPECT_DONE(pick(control("tabKeyed"), str("3Key")));
    EXPECT_EQ(read("tabKeyed", "ListIndex"), str("2"));
    EXPECT_THAT(deeds(), ElementsAre(str("tabKeyed Click 1"), str("tabKeyed Click 2")));
}

TEST_F(ControlAdapter, WalksThroughFolders)
{
    turnTo("2");
    EXPECT_EQ(read("dirFolders", "Path"), str("/"));
    EXPECT_DONE(setValue(control("dirFolders"), str("/usr/share")));
    EXPECT_EQ(read("dirFolders", "Path"), str("/usr/share"));
    EXPECT_EQ(read("filNames", "Path"), str("/usr/share"));
    EXPECT_DONE(setValue(control("dirFolders"), str("/usr/bin")));
    EXPECT_EQ(read("dirFolders", "Path"), str("/usr/bin"));
    expectRefused(setValue(control("dirFolders"), str("/usr/bin/none")), "way");
}

TEST_F(ControlAdapter, SwitchesChecksAndOptions)
{
    turnTo("3");
    events();
    EXPECT_EQ(read("chkTick", "Value"), str("0"));
    EXPECT_DONE(setValue(control("chkTick"), str("1")));
    EXPECT_DONE(setValue(control("chkTick"), str("1")));
    EXPECT_EQ(read("chkTick", "Value"), str("1"));
    EXPECT_EQ(read("chkTick", "Checked"), str("True"));
    EXPECT_DONE(click(control("chkTick")));
    EXPECT_EQ(read("chkTick", "Checked"), str("False"));
    EXPECT_DONE(click(control("optRight")));
    EXPECT_EQ(read("optLeft", "Value"), str("0"));
    EXPECT_EQ(read("optPercent", "Value"), str("1")) << "options of another group";
    EXPECT_THAT(deeds(), ElementsAre(str("chkTick Click"), str("chkTick Click"), str("optRight Click")));
    expectRefused(setValue(control("optRight"), str("0")), "did not");
    expectRefused(setValue(control("chkTick"), str("True")), "0 or 1");
}

TEST_F(ControlAdapter, PicksFromADropDownListOnce)
{
    turnTo("3");
    events();
    EXPECT_DONE(setValue(control("cboDrop"), str("right")));
    EXPECT_EQ(read("cboDrop", "Text"), str("right"));
    EXPECT_THAT(deeds(), ElementsAre(str("cboDrop Click"))) << "the rows on the way are not picked";
}

TEST_F(ControlAdapter, TurnsACalendar)
{
    turnTo("3");
    for (const char *date : {"2026-04-05", "2026-03-31", "2024-02-29", "2026-12-01"}) {
        EXPECT_DONE(setValue(control("monDate"), str(date)));
        EXPECT_EQ(read("monDate", "Value"), str(date));
    }
    EXPECT_EQ(deeds().count(str("monDate Change")), 4);
    expectRefused(setValue(control("monDate"), str("2026-02-30")), "a date");
}

TEST_F(ControlAdapter, PicksCellsByNumberOrCharacter)
{
    turnTo("3");
    events();
    EXPECT_DONE(pick(control("grdCharacters"), str("20")));
    EXPECT_EQ(read("grdCharacters", "ListIndex"), str("20"));
    EXPECT_EQ(read("grdCharacters", "Text"), str("4")); // the blank, code 32, is cell 0
    EXPECT_DONE(pick(control("grdCharacters"), str("A")));
    EXPECT_EQ(read("grdCharacters", "ListIndex"), str("33"));
    EXPECT_DONE(dblpick(control("grdCharacters"), str("~")));
    EXPECT_THAT(deeds(), ElementsAre(str("grdCharacters Click"), str("grdCharacters Click"), str("grdCharacters Click"),
                                     str("grdCharacters DblClick")));
}

TEST_F(ControlAdapter, ClicksPicturesAndLabels)
{
    turnTo("4");
    events();
    EXPECT_DONE(click(control("picBullet(2)")));
    EXPECT_DONE(click(control("lblClick")));
    EXPECT_THAT(deeds(), ElementsAre(str("picBullet(2) Click"), str("lblClick Click")));
    EXPECT_EQ(read("picSurface", "MousePointer"), str("2"));
    EXPECT_EQ(read("picBullet(2)", "MousePointer"), str("0"));
}

TEST_F(ControlAdapter, MovesScrollBars)
{
    turnTo("4");
    events();
    EXPECT_DONE(scroll(control("hsbScroll"), str("42")));
    EXPECT_EQ(read("hsbScroll", "Value"), str("42"));
    EXPECT_DONE(setValue(control("vsbScroll"), str("7")));
    EXPECT_EQ(read("vsbScroll", "Value"), str("7"));
    EXPECT_THAT(deeds(), ElementsAre(str("hsbScroll Change"), str("vsbScroll Change")));
    expectRefused(scroll(control("hsbScroll"), str("100")), "from 0 to 99");
}

TEST_F(ControlAdapter, NamesTheThemesColours)
{
    turnTo("4");
    EXPECT_EQ(read("shpColour", "BackColor"), str("8388608")); // blue 128 in the high byte
    EXPECT_EQ(read("picSurface", "BackColor"), str("button-face"));
    EXPECT_EQ(read("txtText", "BackColor"), str("window"));
}

TEST_F(ControlAdapter, ReadsTimersAndForms)
{
    EXPECT_EQ(read("tmrTick", "Interval"), str("500"));
    EXPECT_EQ(read("tmrTick", "Enabled"), str("False"));
    EXPECT_EQ(readProperty(*form.window(), str("Caption")), str("One control of each kind"));
    EXPECT_EQ(readProperty(*form.window(), str("WindowState")), str("0"));
    EXPECT_EQ(readProperty(control("txtText"), str("Nonsense")), std::nullopt);
    EXPECT_EQ(readProperty(control("txtText"), str("List(0)")), std::nullopt);
}

TEST_F(ControlAdapter, ListsThePropertiesThatAControlHas)
{
    EXPECT_THAT(propertyNames(control("tmrTick")), ElementsAre(str("Enabled"), str("Interval")));
    EXPECT_THAT(propertyNames(control("txtText")), Contains(str("SelStart")));
    EXPECT_THAT(propertyNames(control("cmdOK")), testing::Not(Contains(str("Text"))));
}

TEST_F(ControlAdapter, RefusesWhatIsBehindAModalForm)
{
    frmTestModal modal(context);
    modal.Show();
    modal.window()->hide();
    modal.window()->setWindowModality(Qt::ApplicationModal);
    modal.window()->show();
    expectRefused(click(control("cmdOK")), "frmTestModal");
    EXPECT_DONE(setValue(*modal.control(str("txtAnswer")), str("yes")));
    EXPECT_DONE(click(*modal.control(str("cmdOK"))));
    EXPECT_EQ(modal.answer, str("yes"));
    EXPECT_DONE(click(control("cmdOK")));
}
} // namespace drive
