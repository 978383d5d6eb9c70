#pragma once

#include "common/textSurface.h"

#include <QByteArray>
#include <QFont>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <functional>
#include <optional>

class QPainter;

/// One line as it stands on paper.
struct PrintedLine {
    QString text;                    ///< without tabs and line ends
    int number = 0;                  ///< of the source line that begins with it, from 1; 0 where one goes on
    QList<FormatRange> formats = {}; ///< of parts of it; empty: all of it is black
};

struct PrintedPage {
    QList<PrintedLine> lines;
};

/// What is to be printed, laid out for the paper that it goes to.
struct PrintJob {
    QString title;
    QFont font;
    int copies = 1; ///< the pages are printed so many times, one run after the other
    bool lineNumbers = false;
    QList<PrintedPage> pages = {};
};

/// A drawing that is to be printed on one page.
struct PictureJob {
    QString title;
    int copies = 1;
    bool landscape = false;
    /// Draws it within a place of the paper, in the painter's own units.
    std::function<void(QPainter &, const QRectF &)> draw;
};

/// A drawing that is to be a file of vector graphics (SVG).
struct SvgJob {
    QString title;
    QSizeF size; ///< in pixels of the screen
    /// Draws it within that place, in pixels.
    std::function<void(QPainter &, const QRectF &)> draw;
};

/// What a drawing has become.
struct SvgFile {
    QByteArray bytes;
    QString reason = {}; ///< why there are none, a sentence
};

/// What text is measured by on a printer's paper. All lengths are points, 1/72 inch.
struct Paper {
    QSizeF size; ///< within the printer's margins
    qreal lineHeight = 0;
    std::function<qreal(const QString &)> textWidth;
};

/// Why there is nothing on paper.
struct PrintError {
    enum Number : int { Failed = 482, NoDriver = 484, Unexpected = 51 };
    int number = Failed;
    QString description = {}; ///< the system's own words, told where the program has none
};

/// The printer that the user chose in the last print dialog, the desktop's usual one before; and what is drawn as for
/// it into a file.
class Printing
{
public:
    Printing() = default;
    Printing(const Printing &) = delete;
    Printing &operator=(const Printing &) = delete;
    virtual ~Printing() = default;

    /// The paper, as text in that font goes onto it.
    virtual Paper paper(const QFont &font) = 0;
    /// Prints the job, page after page. `goOn` is asked before each one, given its number counted from 0 over all
    /// copies; False calls the rest off, which is no error. Nothing: all went well.
    virtual std::optional<PrintError> print(const PrintJob &job, const std::function<bool(int)> &goOn) = 0;
    /// Prints a picture on a page of its own.
    virtual std::optional<PrintError> printPicture(const PictureJob &job) = 0;
    virtual SvgFile svg(const SvgJob &job) = 0;
};
