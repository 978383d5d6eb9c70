#include "figures.h"
#include "forms/form.h"
#include "insertion/menuMarkup.h"
#include "runningProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWidget>
#include <algorithm>

namespace
{
constexpr int Runs = 9;
constexpr int Moves = 100;
constexpr int Captions = 20;
constexpr int Items = 20;
constexpr double Milli = 1000;

template <class Control>
Control *control(Form &form, const char *name)
{
    return qobject_cast<Control *>(form.control(QLatin1String(name)));
}

QString photograph(const QString &folder, const char *format)
{
    QString path = folder + u'/' + QLatin1String(format);
    QImage picture(4000, 3000, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * y % 251, x % 256, y % 256));
    picture.save(path, format);
    return path;
}

/// Real time, since another process reads the picture.
double showingTime(Form &form, const QString &path)
{
    auto *cboSrc = control<QComboBox>(form, "cboSrc");
    auto *board = control<QWidget>(form, "picImage");
    cboSrc->setEditText(QString());
    cboSrc->setFocus();
    control<QWidget>(form, "txtImgName")->setFocus();
    cboSrc->setEditText(path);
    cboSrc->setFocus();
    QElapsedTimer timer;
    timer.start();
    control<QWidget>(form, "txtImgName")->setFocus();
    board->repaint();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double showingTimes(Form &form, const QString &path)
{
    std::vector<double> times(Runs);
    for (double &time : times)
        time = showingTime(form, path);
    return median(times);
}

void send(QWidget &board, QEvent::Type type, const QPointF &at)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, board.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&board, &event);
}

/// A rectangle that grows over all of what is seen of the picture, each step painted.
double moveTime(Form &form)
{
    auto *board = control<QWidget>(form, "picImage");
    const QSize seen = control<QWidget>(form, "picBack")->size();
    send(*board, QEvent::MouseButtonPress, {2, 2});
    const double start = processorTime();
    for (int move = 1; move <= Moves; ++move) {
        const double share = static_cast<double>(move) / Moves;
        send(*board, QEvent::MouseMove, {2 + (seen.width() - 4) * share, 2 + (seen.height() - 4) * share});
        RunningProgram::settle();
    }
    const double time = (processorTime() - start) / Moves;
    send(*board, QEvent::MouseButtonRelease, {2, 2});
    return time;
}

void mapFigures(Figures &figures, Form &form)
{
    const QTemporaryDir folder;
    form.Show();
    form.window()->resize(1400, 1000);
    RunningProgram::settle();
    for (const char *format : {"jpg", "png"})
        figures.add(QStringLiteral("%1 of 12 megapixels shown in the map designer").arg(QLatin1String(format)),
                    showingTimes(form, photograph(folder.path(), format)) * Milli, QStringLiteral("ms"), 1000);
    figures.add(QStringLiteral("a move of the mouse that draws on it"), moveTime(form) * Milli, QStringLiteral("ms"),
                8);
    auto *zoom = control<QComboBox>(form, "cboZoom");
    zoom->setCurrentIndex(zoom->count() - 1);
    RunningProgram::settle();
    figures.add(QStringLiteral("the same at the largest zoom"), moveTime(form) * Milli, QStringLiteral("ms"), 8);
    form.Unload();
    RunningProgram::settle();
}

QList<MenuRow> largeMenu()
{
    QList<MenuRow> rows;
    for (int caption = 0; caption < Captions; ++caption) {
        rows.append({.text = QStringLiteral("Caption %1").arg(caption)});
        for (int item = 0; item < Items; ++item)
            rows.append({.item = true,
                         .text = QStringLiteral("Item %1 of %2").arg(item).arg(caption),
                         .link = QStringLiteral("pages/%1/%2.htm").arg(caption).arg(item)});
    }
    return rows;
}

/// Types the menu in, row by row, as a user does.
void enter(Form &form, const QList<MenuRow> &rows)
{
    for (const MenuRow &row : rows) {
        control<QAbstractButton>(form, "mnuNext")->click();
        control<QAbstractButton>(form, row.item ? "optMenuItem" : "optMenuCaption")->click();
        control<QLineEdit>(form, "txtMenuCaption")->setText(row.text);
        control<QLineEdit>(form, "txtMenuLink")->setText(row.link);
    }
}

void menuFigures(Figures &figures, Form &form)
{
    const QList<MenuRow> rows = largeMenu();
    const auto write = [&] { scriptedMenu(rows, {}); };
    figures.add(QStringLiteral("text of a menu of 20 captions with 20 items each"), medianTime(Runs, write) * Milli,
                QStringLiteral("ms"), 20);
    form.Show();
    enter(form, rows);
    RunningProgram::settle();
    auto *field = control<QLineEdit>(form, "txtMenuCaption");
    const auto type = [&] {
        field->insert(QStringLiteral("x"));
        RunningProgram::settle();
    };
    figures.add(QStringLiteral("its preview after a key"), medianTime(Runs, type) * Milli, QStringLiteral("ms"), 150);
    const double start = processorTime();
    control<QAbstractButton>(form, "cmdInsert")->click();
    figures.add(QStringLiteral("its insertion, with the document's part of it"), (processorTime() - start) * Milli,
                QStringLiteral("ms"));
    RunningProgram::settle();
}
} // namespace

void designerFigures(Figures &figures)
{
    RunningProgram running;
    Application &program = running.program();
    mapFigures(figures, *program.form(QStringLiteral("frmInsImageMap")));
    menuFigures(figures, *program.form(QStringLiteral("frmInsertDHTMLMenu")));
}
