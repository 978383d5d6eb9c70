// Every form with the eyes of a screen reader, and with the hands of somebody who has no mouse.
#include "forms/form.h"
#include "unit/support/accessibleWalk.h"
#include "unit/support/spokenNames.h"
#include "unit/support/wholeProgram.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace
{
using AccessibleForms = WholeProgram;

QByteArray told(const Form &form, const QStringList &what)
{
    return (form.Name() + QStringLiteral(":\n  ") + what.join(QStringLiteral("\n  "))).toUtf8();
}

QStringList namesOf(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets)
        names.append(widget ? widget->objectName() : QStringLiteral("(lost)"));
    return names;
}

/// The button that Enter presses; nothing where there is none.
QPushButton *defaultButton(const QWidget &window)
{
    for (QPushButton *button : window.findChildren<QPushButton *>())
        if (button->isDefault() && button->isVisible())
            return button;
    return nullptr;
}
/// The button that Escape presses.
QPushButton *cancelButton(const QWidget &window)
{
    for (const char *name : {"cmdCancel", "cmdClose"})
        if (auto *button = window.findChild<QPushButton *>(QLatin1String(name)))
            if (button->isVisible() && button->isEnabled())
                return button;
    return nullptr;
}

/// How often a button is pressed by a key in a control. What the button does is another test's, and is left out.
int clicksBy(Qt::Key key, QWidget &control, QPushButton &button)
{
    int clicks = 0;
    QObject::disconnect(&button, &QPushButton::clicked, nullptr, nullptr);
    QObject::connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
    QTest::keyClick(&control, key);
    return clicks;
}
} // namespace

TEST_F(AccessibleForms, TellEachControlPictureAndGroup)
{
    forEachDialog([](Form &form) {
        present(form);
        ASSERT_TRUE(form.window()) << qPrintable(form.Name());
        forEachPage(*form.window(), [&form] {
            QStringList missing = untold(*form.window());
            if (form.Name() == u"frmPalette") // its caption comes with what it is opened for
                missing.removeOne(QStringLiteral("frmPalette QDialog: no name"));
            EXPECT_TRUE(missing.isEmpty()) << told(form, missing).constData();
        });
    });
}

TEST_F(AccessibleForms, LeadTheKeyboardRoundInReadingOrder)
{
    qsizetype steps = 0;
    forEachDialog([&steps](Form &form) {
        present(form);
        ASSERT_TRUE(form.window()) << qPrintable(form.Name());
        forEachPage(*form.window(), [&form, &steps] {
            QWidget &window = *form.window();
            settle();
            const QList<QWidget *> round = tabRound(window);
            steps += round.size();
            EXPECT_FALSE(round.contains(nullptr)) << told(form, namesOf(round)).constData();
            QStringList left;
            for (QWidget *stop : keyboardStops(window))
                if (!round.contains(stop))
                    left.append(stop->objectName());
            EXPECT_TRUE(left.isEmpty()) << "not reached: " << told(form, left).constData();
            const QStringList backwards = stepsBackwards(round, window);
            EXPECT_TRUE(backwards.isEmpty()) << "backwards: " << told(form, backwards).constData();
        });
    });
    EXPECT_GT(steps, 500);
}

TEST_F(AccessibleForms, PressTheirCancelButtonByEscape)
{
    int escaped = 0;
    forEachDialog([&escaped](Form &form) {
        present(form);
        QPushButton *button = form.window() ? cancelButton(*form.window()) : nullptr;
        if (!button)
            return;
        EXPECT_EQ(clicksBy(Qt::Key_Escape, *form.window(), *button), 1) << qPrintable(form.Name());
        ++escaped;
    });
    EXPECT_GT(escaped, 40);
}

TEST_F(AccessibleForms, PressTheirDefaultButtonByEnterInAField)
{
    int pressed = 0;
    forEachDialog([&pressed](Form &form) {
        present(form);
        if (!form.window())
            return;
        QPushButton *button = defaultButton(*form.window());
        const auto fields = form.window()->findChildren<QLineEdit *>();
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const QLineEdit *edit) {
            return takesTheKeyboard(*edit, *form.window()) && edit->isEnabled();
        });
        if (!button || !button->isEnabled() || field == fields.end())
            return;
        (*field)->setFocus();
        EXPECT_EQ(clicksBy(Qt::Key_Return, **field, *button), 1) << qPrintable(form.Name());
        ++pressed;
    });
    EXPECT_GT(pressed, 15);
}
