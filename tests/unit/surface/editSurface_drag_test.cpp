// Drags of the surface's own selection, by the mouse from its press to its release: within the text, onto itself, and
// to another document.
#include "surfaceFixture.h"

#include <QDrag>
#include <QMimeData>

namespace
{
/// A surface whose drags end at a place that is set, as a desktop's mouse would have them end.
class DraggedSurface final : public EditSurface
{
public:
    EditSurface *target = nullptr;
    QPoint place; ///< in the target's viewport
    Qt::KeyboardModifiers keys;
    Qt::DropAction otherwise = Qt::IgnoreAction;
    int drags = 0;

protected:
    Qt::DropAction carry(QDrag &drag, Qt::DropActions actions, Qt::DropAction byDefault) override
    {
        ++drags;
        otherwise = byDefault;
        QDragEnterEvent enter(place, actions, drag.mimeData(), Qt::LeftButton, keys);
        QApplication::sendEvent(target->viewport(), &enter);
        QDragMoveEvent move(place, actions, drag.mimeData(), Qt::LeftButton, keys);
        if (enter.isAccepted())
            QApplication::sendEvent(target->viewport(), &move);
        QDropEvent drop(place, actions, drag.mimeData(), Qt::LeftButton, keys);
        if (move.isAccepted())
            QApplication::sendEvent(target->viewport(), &drop);
        const Qt::DropAction done = move.isAccepted() && drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
        drag.deleteLater();
        return done;
    }
};

class EditSurfaceDrag : public testing::Test
{
protected:
    EditSurfaceDrag()
    {
        for (EditSurface *each : {static_cast<EditSurface *>(&surface), &other}) {
            each->resize(500, 300);
            each->show();
        }
        QApplication::processEvents();
        surface.setText(QStringLiteral("one two three\r\nfour"));
        other.setText(QStringLiteral("ab"));
    }

    void select(qsizetype start, qsizetype length)
    {
        EXPECT_TRUE(surface.setSelStart(start));
        EXPECT_TRUE(surface.setSelLength(length));
    }
    Selection selection() const { return {surface.SelStart(), surface.SelLength()}; }
    static QPoint placeOf(const EditSurface &in, qsizetype position)
    {
        return in.positionOfCharacter(position).center() + QPoint(1, 0) - in.viewport()->pos();
    }
    void send(QEvent::Type type, const QPoint &place, Qt::MouseButton button)
    {
        QMouseEvent event(type, place, surface.viewport()->mapToGlobal(place), button, Qt::LeftButton, {});
        QApplication::sendEvent(surface.viewport(), &event);
    }
    /// Drags what is selected, and lets it go in front of a character. Shift and Ctrl are the desktop's keys to move
    /// and to copy; without one it is to move.
    void dragTo(EditSurface &target, qsizetype position, Qt::KeyboardModifiers keys = Qt::ShiftModifier)
    {
        surface.target = &target;
        surface.place = placeOf(target, position);
        surface.keys = keys;
        const int before = surface.drags;
        const QPoint begin = placeOf(surface, surface.SelStart() + 1);
        send(QEvent::MouseButtonPress, begin, Qt::LeftButton);
        send(QEvent::MouseMove, begin + QPoint(0, QApplication::startDragDistance() + 1), Qt::NoButton);
        EXPECT_EQ(surface.drags, before + 1);
        EXPECT_EQ(surface.otherwise, surface.Locked() ? Qt::CopyAction : Qt::MoveAction);
    }

    DraggedSurface surface;
    EditSurface other;
};

TEST_F(EditSurfaceDrag, MovesTheSelectionInOneChange)
{
    const struct {
        qsizetype place;
        const char *text;
        Selection after;
    } rows[] = {
        {19, "one three\r\nfourtwo ", {19, 0}},
        {0, "two one three\r\nfour", {4, 0}},
        {13, "one threetwo \r\nfour", {13, 0}},
    };
    for (const auto &row : rows) {
        surface.setText(QStringLiteral("one two three\r\nfour"));
        select(4, 4);
        QSignalSpy changes(&surface, &EditSurface::Change);
        dragTo(surface, row.place);
        EXPECT_EQ(surface.Text(), QString::fromLatin1(row.text));
        EXPECT_EQ(selection(), row.after) << "behind what was moved";
        EXPECT_EQ(changes.count(), 1);
    }
}

TEST_F(EditSurfaceDrag, CopiesTheSelectionWithCtrl)
{
    select(4, 4);
    QSignalSpy changes(&surface, &EditSurface::Change);
    dragTo(surface, 19, Qt::ControlModifier);
    EXPECT_EQ(surface.Text(), QStringLiteral("one two three\r\nfourtwo "));
    EXPECT_EQ(selection(), Selection(23, 0));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(EditSurfaceDrag, LineBreaksStayWhatTheyAre)
{
    select(8, 7);
    dragTo(surface, 0);
    EXPECT_EQ(surface.Text(), QStringLiteral("three\r\none two four"));
}

TEST_F(EditSurfaceDrag, NothingChangesWhereTheSelectionIsDroppedOnItself)
{
    for (const qsizetype place : {4, 6, 8}) {
        select(4, 4);
        QSignalSpy changes(&surface, &EditSurface::Change);
        dragTo(surface, place);
        EXPECT_EQ(surface.Text(), QStringLiteral("one two three\r\nfour"));
        EXPECT_EQ(selection(), Selection(4, 4));
        EXPECT_EQ(changes.count(), 0) << place;
    }
}

TEST_F(EditSurfaceDrag, ACopyMayGoIntoItself)
{
    select(4, 4);
    dragTo(surface, 6, Qt::ControlModifier);
    EXPECT_EQ(surface.Text(), QStringLiteral("one twtwo o three\r\nfour"));
}

TEST_F(EditSurfaceDrag, MovesIntoAnotherDocument)
{
    select(4, 4);
    QSignalSpy changes(&surface, &EditSurface::Change);
    QSignalSpy changesThere(&other, &EditSurface::Change);
    dragTo(other, 1);
    EXPECT_EQ(surface.Text(), QStringLiteral("one three\r\nfour"));
    EXPECT_EQ(other.Text(), QStringLiteral("atwo b"));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(changesThere.count(), 1);
}

TEST_F(EditSurfaceDrag, CopiesIntoAnotherDocumentWithCtrl)
{
    select(4, 4);
    dragTo(other, 1, Qt::ControlModifier);
    EXPECT_EQ(surface.Text(), QStringLiteral("one two three\r\nfour"));
    EXPECT_EQ(selection(), Selection(4, 4));
    EXPECT_EQ(other.Text(), QStringLiteral("atwo b"));
}

TEST_F(EditSurfaceDrag, AnOwnerThatTakesDropsGetsItFromElsewhereOnly)
{
    QStringList dropped;
    SurfaceHooks hooks;
    hooks.textDropped = [&](const QString &text) { dropped << text; };
    surface.setHooks(hooks);
    other.setHooks(hooks);
    select(4, 4);
    dragTo(surface, 0);
    EXPECT_EQ(surface.Text(), QStringLiteral("two one three\r\nfour"));
    EXPECT_EQ(dropped, QStringList());
    select(0, 4);
    dragTo(other, 1);
    EXPECT_EQ(dropped, QStringList(QStringLiteral("two ")));
    EXPECT_EQ(surface.Text(), QStringLiteral("one three\r\nfour")) << "it was moved there";
}

TEST_F(EditSurfaceDrag, ALockedTextGivesCopiesAndTakesNothing)
{
    surface.setLocked(true);
    select(4, 4);
    dragTo(surface, 19, {});
    EXPECT_EQ(surface.Text(), QStringLiteral("one two three\r\nfour"));
    dragTo(other, 1, {});
    EXPECT_EQ(surface.Text(), QStringLiteral("one two three\r\nfour"));
    EXPECT_EQ(other.Text(), QStringLiteral("atwo b"));
    surface.setLocked(false);
    other.setLocked(true);
    dragTo(other, 1);
    EXPECT_EQ(surface.Text(), QStringLiteral("one two three\r\nfour")) << "nobody took it";
    EXPECT_EQ(other.Text(), QStringLiteral("atwo b"));
}
} // namespace
