#include "widgets/layout.h"

#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A window with the described controls, as a form lays them out.
class Window : public QWidget
{
public:
    explicit Window(const ui::Node &content)
    {
        auto *layout = new QVBoxLayout;
        content.addTo(*layout);
        setLayout(layout);
        show();
        QApplication::setActiveWindow(this);
    }

    template <class Control>
    Control &control(const char *name)
    {
        return *findChild<Control *>(str(name));
    }

    /// The names of the controls in the order in which Tab reaches them.
    QStringList tabOrder()
    {
        QStringList names;
        for (QWidget *next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
            if (next->focusPolicy() & Qt::TabFocus && next->isVisible() && !next->objectName().isEmpty())
                names.append(next->objectName());
        }
        return names;
    }
};

ui::Handler nothing()
{
    return [] {};
}

TEST(Layout, FocusFollowsTheDescription)
{
    // Built in another order than they are described in.
    QPushButton *cmdOK = ui::button(str("cmdOK"), str("OK"), nothing());
    QLineEdit *txtLast = ui::text(str("txtLast"));
    QPushButton *cmdBrowse = ui::button(str("cmdBrowse"), str("Browse..."), nothing());
    QCheckBox *chkIn = ui::check(str("chkIn"), str("In"));
    QLineEdit *txtFirst = ui::text(str("txtFirst"));
    Window window(ui::beside({ui::column({ui::rows({ui::row(str("&First:"), txtFirst, {cmdBrowse})}),
                                          ui::group(str("Group"), chkIn), ui::rows({ui::row(str("&Last:"), txtLast)})}),
                              ui::buttons({cmdOK})}));
    EXPECT_THAT(window.tabOrder(),
                ElementsAre(str("txtFirst"), str("cmdBrowse"), str("chkIn"), str("txtLast"), str("cmdOK")));
}

TEST(Layout, ALabelNamesItsControlAndLeadsToIt)
{
    Window window(ui::rows({ui::row(str("&Search && find:"), ui::text(str("txtFind")), {}, str("lblFind"))}));
    EXPECT_EQ(window.control<QLineEdit>("txtFind").accessibleName(), str("Search & find"));
    EXPECT_EQ(window.control<QLabel>("lblFind").buddy(), &window.control<QLineEdit>("txtFind"));
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &window.control<QLineEdit>("txtFind"));
}

TEST(Layout, ALabelNamesTheFieldOfACombo)
{
    Window window(ui::rows({ui::row(str("&URL:"), ui::combo(str("cboUrl")))}));
    EXPECT_EQ(window.control<QComboBox>("cboUrl").accessibleName(), str("URL"));
    EXPECT_EQ(window.control<QComboBox>("cboUrl").lineEdit()->accessibleName(), str("URL"));
}

TEST(Layout, ALabelNamesWhatTrailsAndDescribesItsButtons)
{
    QLineEdit *txtWidth = ui::text(str("txtWidth"));
    Window window(ui::rows({ui::row(str("&Width:"), txtWidth,
                                    {ui::dropList(str("cboUnit"), {str("%"), str("px")}),
                                     ui::button(str("cmdBrowse"), str("B&rowse..."), nothing())})}));
    EXPECT_EQ(window.control<QComboBox>("cboUnit").accessibleName(), str("Width"));
    EXPECT_EQ(window.control<QPushButton>("cmdBrowse").accessibleDescription(), str("Width"));
    EXPECT_EQ(window.control<QPushButton>("cmdBrowse").accessibleName(), QString()) << "its caption is its name";
}

TEST(Layout, ANumberFieldIsCountedByArrowsNamedAfterIt)
{
    NumberField *txtRows = ui::number(str("txtRows"), 2);
    Window window(ui::rows({ui::row(str("&Rows:"), ui::counted(txtRows))}));
    auto &spnRows = window.control<SpinButton>("spnRows");
    EXPECT_EQ(spnRows.x(), txtRows->x() + txtRows->width()) << "right behind it";
    EXPECT_EQ(spnRows.Min(), 0);
    EXPECT_EQ(spnRows.Max(), 99);
    spnRows.setValue(7);
    EXPECT_EQ(txtRows->text(), str("7"));
    EXPECT_EQ(txtRows->accessibleName(), str("Rows"));
}

TEST(Layout, ALongNumberIsCountedAsFarAsNumbersGo)
{
    Window window(ui::rows({ui::row(str("Width:"), ui::counted(ui::number(str("txtWidth"), 10)))}));
    EXPECT_EQ(window.control<SpinButton>("spnWidth").Max(), 2147483647);
}

TEST(Layout, ALabelThatChangesNamesItsControlAnew)
{
    Window window(ui::rows({ui::row(str("Text:"), ui::text(str("txtText")), {}, str("Label4")),
                            ui::row(str("Map:"), ui::combo(str("cboMap")), {}, str("Label5"))}));
    ui::relabel(&window.control<QLabel>("Label4"), str("&Alternative Text:"));
    EXPECT_EQ(window.control<QLabel>("Label4").text(), str("&Alternative Text:"));
    EXPECT_EQ(window.control<QLineEdit>("txtText").accessibleName(), str("Alternative Text"));
    ui::relabel(&window.control<QLabel>("Label5"), str("Area:"));
    EXPECT_EQ(window.control<QComboBox>("cboMap").lineEdit()->accessibleName(), str("Area"));
}

TEST(Layout, AListStandsUnderItsLabel)
{
    Window window(ui::under(str("&Fonts:"), ui::list(str("lstFonts")), str("lblFonts")));
    auto &list = window.control<QListWidget>("lstFonts");
    auto &label = window.control<QLabel>("lblFonts");
    EXPECT_EQ(list.accessibleName(), str("Fonts"));
    EXPECT_EQ(label.buddy(), &list);
    EXPECT_GE(list.y(), label.y() + label.height());
}

TEST(Layout, SpareRoomGoesToListsAndNotBetweenRows)
{
    Window window(
        ui::column({ui::rows({ui::row(str("A:"), ui::text(str("txtA"))), ui::row(str("B:"), ui::text(str("txtB")))}),
                    ui::list(str("lstAll"))}));
    const int gap = window.control<QLineEdit>("txtB").y() - window.control<QLineEdit>("txtA").y();
    const int height = window.control<QListWidget>("lstAll").height();
    window.resize(window.width(), window.height() + 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.control<QLineEdit>("txtB").y() - window.control<QLineEdit>("txtA").y(), gap);
    EXPECT_EQ(window.control<QListWidget>("lstAll").height(), height + 300);
}

TEST(Layout, RowsStayTogetherAtTheTopWhereNothingStretches)
{
    Window window(ui::rows({ui::row(str("A:"), ui::text(str("txtA"))), ui::row(str("B:"), ui::text(str("txtB")))}));
    const int a = window.control<QLineEdit>("txtA").y();
    const int b = window.control<QLineEdit>("txtB").y();
    window.resize(window.width(), window.height() + 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.control<QLineEdit>("txtA").y(), a);
    EXPECT_EQ(window.control<QLineEdit>("txtB").y(), b);
}

TEST(Layout, WrappedTextsGetTheHeightThatTheyNeedAtTheirWidth)
{
    QList<ui::Node> texts;
    for (const char *name : {"a", "b"}) {
        QLabel *label = ui::label(QLatin1String(name),
                                  str("Words that are long enough to be wrapped into many lines. ").repeated(4));
        label->setWordWrap(true);
        texts.append(label);
    }
    Window window(ui::column({ui::column(texts), ui::check(str("c"), str("&C")), ui::space()}));
    window.resize(160, 2000);
    for (const char *name : {"a", "b"}) {
        const auto &label = *window.findChild<QLabel *>(QLatin1String(name));
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
    }
    const auto &last = *window.findChild<QLabel *>(str("b"));
    const auto &check = *window.findChild<QCheckBox *>(str("c"));
    EXPECT_LT(check.y() - last.geometry().bottom(), 20);
}

TEST(Layout, ANumberFieldKeepsItsWidthAndItsArrowsStayBesideIt)
{
    NumberField *field = ui::number(str("txtRows"), 3);
    Window window(ui::rows({ui::row(str("&Rows:"), field, {ui::spin(str("updRows"), field, 1, 99)})}));
    const int width = field->width();
    window.resize(window.width() + 300, window.height());
    QCoreApplication::processEvents();
    EXPECT_EQ(field->width(), width);
    const auto &spin = window.control<SpinButton>("updRows");
    EXPECT_LT(spin.x() - (field->x() + field->width()), 20);
}

TEST(Layout, GrowsWithTheFont)
{
    const auto width = [](int points) {
        Window window(ui::column({ui::rows({ui::row(str("A long label:"), ui::text(str("txtA")))}),
                                  ui::check(str("chkA"), str("A long caption of a check box"))}));
        QFont font = window.font();
        font.setPointSize(points);
        window.setFont(font);
        QCoreApplication::processEvents();
        return window.minimumSizeHint();
    };
    const QSize usual = width(9);
    const QSize large = width(18);
    EXPECT_GT(large.width(), usual.width() * 3 / 2);
    EXPECT_GT(large.height(), usual.height() * 5 / 4);
}

TEST(Layout, GroupsOfOptionsExcludeOnlyTheirOwn)
{
    QRadioButton *left = ui::option(str("optLeft"), str("Left"));
    QRadioButton *right = ui::option(str("optRight"), str("Right"));
    QRadioButton *percent = ui::option(str("optPercent"), str("Percent"));
    QRadioButton *pixels = ui::option(str("optPixels"), str("Pixels"));
    Window window(ui::column({ui::options({left, right}), ui::options({percent, pixels}, Qt::Horizontal)}));
    left->setChecked(true);
    percent->setChecked(true);
    QTest::keyClick(right, Qt::Key_Space);
    EXPECT_FALSE(left->isChecked());
    EXPECT_TRUE(right->isChecked());
    EXPECT_TRUE(percent->isChecked());
    EXPECT_LT(left->y(), right->y());
    EXPECT_EQ(percent->y(), pixels->y());
}

TEST(Layout, PagesFollowTheirTabStrip)
{
    QTabBar *strip = ui::tabStrip(str("tabOptions"), {str("&General"), str("&Files")});
    Window window(ui::pages(strip, str("picContainer"), {ui::text(str("txtGeneral")), ui::text(str("txtFiles"))}));
    EXPECT_TRUE(window.control<QWidget>("picContainer(0)").isVisible());
    EXPECT_FALSE(window.control<QWidget>("txtFiles").isVisible());
    QTest::keyClick(strip, Qt::Key_Right);
    EXPECT_FALSE(window.control<QWidget>("picContainer(0)").isVisible());
    EXPECT_TRUE(window.control<QWidget>("txtFiles").isVisible());
    EXPECT_EQ(window.control<QWidget>("picContainer(1)").accessibleName(), str("Files"));
}

TEST(Layout, PagesOpenAtTheStripsChoice)
{
    QTabBar *strip = ui::tabStrip(str("tabOptions"), {str("General"), str("Files")});
    strip->setCurrentIndex(1);
    Window window(ui::pages(strip, str("picContainer"), {ui::text(str("txtGeneral")), ui::text(str("txtFiles"))}));
    EXPECT_TRUE(window.control<QWidget>("txtFiles").isVisible());
}

TEST(Layout, NamesTheMembersOfAnArray)
{
    const QList<QLineEdit *> members =
        ui::array(str("txtPart"), 3, [](const QString &name, int) { return ui::text(name); });
    QList<ui::Node> pieces;
    for (QLineEdit *member : members)
        pieces.append(member);
    Window window(ui::column(pieces));
    EXPECT_EQ(members[2]->objectName(), str("txtPart(2)"));
    EXPECT_THAT(window.tabOrder(), ElementsAre(str("txtPart(0)"), str("txtPart(1)"), str("txtPart(2)")));
}

TEST(Layout, AHiddenControlTakesNoRoom)
{
    Window with(ui::column({ui::text(str("txtSeen")), ui::hidden(ui::list(str("lstHidden")))}));
    Window without(ui::column({ui::text(str("txtSeen"))}));
    EXPECT_FALSE(with.control<QWidget>("lstHidden").isVisible());
    EXPECT_EQ(with.sizeHint(), without.sizeHint());
}

TEST(Layout, EnteringAFieldSelectsItsText)
{
    Window window(ui::column({ui::text(str("txtA")), ui::text(str("txtB"))}));
    auto &field = window.control<QLineEdit>("txtB");
    field.setText(str("hello"));
    field.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(field.selectedText(), str("hello"));
}

TEST(Layout, ComingBackToAWindowLeavesTheSelection)
{
    Window window(ui::column({ui::text(str("txtA")), ui::text(str("txtB"))}));
    auto &field = window.control<QLineEdit>("txtB");
    field.setText(str("hello"));
    field.setFocus(Qt::OtherFocusReason);
    field.setSelection(1, 2);
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_FALSE(field.hasFocus());
    QApplication::setActiveWindow(&window);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.selectedText(), str("el"));
}

TEST(Layout, LetsSeveralGroupsBeginTheirControlsInOneColumn)
{
    const ui::Node first = ui::rows({ui::row(str("A long label in front of its field:"), ui::text(str("txtA")))});
    const ui::Node second = ui::rows({ui::row(str("Short:"), ui::text(str("txtB")))});
    ui::alignRows({first, second});
    Window window(ui::column({ui::group(str("One"), first), ui::group(str("Two"), second)}));
    const auto left = [&window](const char *name) {
        return window.control<QLineEdit>(name).mapTo(&window, QPoint()).x();
    };
    EXPECT_EQ(left("txtA"), left("txtB"));
}
} // namespace
