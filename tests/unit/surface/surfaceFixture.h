#pragma once

#include "surface/editSurface.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

/// A surface on show in an active window of its own.
class EditSurfaceTest : public testing::Test
{
protected:
    EditSurfaceTest()
    {
        surface.resize(500, 300);
        surface.show();
        surface.activateWindow();
        surface.setFocus();
        QApplication::processEvents();
    }

    void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&surface, &press);
        QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(&surface, &release);
    }
    /// Types one character as the keyboard gives it, capitals and signs included.
    void sendCharacter(QChar c)
    {
        if (c == u'\r')
            sendKey(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        else
            sendKey(c.toUpper().unicode(), Qt::NoModifier, c);
    }
    void select(qsizetype start, qsizetype length)
    {
        EXPECT_TRUE(surface.setSelStart(start));
        EXPECT_TRUE(surface.setSelLength(length));
    }
    /// The colour in the middle of a character, which has to be a full block: any other leaves some of its ground free.
    QColor drawnColour(qsizetype position)
    {
        const QRect caret = surface.positionOfCharacter(position);
        const int half = surface.fontMetrics().horizontalAdvance(QChar(0x2588)) / 2;
        return surface.grab().toImage().pixelColor(caret.left() + half, caret.center().y());
    }
    std::pair<qsizetype, qsizetype> selection() const { return {surface.SelStart(), surface.SelLength()}; }

    EditSurface surface;
};

using Selection = std::pair<qsizetype, qsizetype>;
