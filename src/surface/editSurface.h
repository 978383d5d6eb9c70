#pragma once

#include "common/textSurface.h"
#include "surface/formatRuns.h"
#include "surface/surfaceHooks.h"
#include "surface/surfaceText.h"
#include "surface/surfaceView.h"
#include "surface/textMarks.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QKeySequence>

class LineMargin;
class SignMargin;
class QDrag;
class QHelpEvent;
class QMimeData;

/// The edit surface of a document: a plain text widget with exactly the contract of TextSurface.
///
/// The text is kept as it was put in, with the starts of its lines; only what is on view is laid out.
class EditSurface : public QAbstractScrollArea, public TextSurface
{
    Q_OBJECT
public:
    explicit EditSurface(QWidget *parent = nullptr);
    ~EditSurface() override;

    void setHooks(SurfaceHooks hooks) { m_hooks = std::move(hooks); }

    QString Text() const override;
    void setText(const QString &text) override;
    QString textPart(qsizetype start, qsizetype length) const override;
    qsizetype textLength() const override;

    qsizetype SelStart() const override;
    bool setSelStart(qsizetype start) override;
    qsizetype SelLength() const override;
    bool setSelLength(qsizetype length) override;
    QString SelText() const override;
    void setSelText(const QString &text) override;

    TextFormat selectionFormat() const override;
    void setSelectionFormat(const TextFormat &format) override;
    TextFormat formatOf(qsizetype start, qsizetype length) const override;
    bool setFormat(qsizetype start, qsizetype length, const TextFormat &format) override;
    void setFormats(const QList<FormatRange> &ranges) override;

    void setMarkedRanges(MarkOwner owner, const QList<MarkedRange> &ranges) override;
    QList<MarkedRange> markedRanges() const override { return m_marks.all(); }
    /// The marks that touch a source line, counted from 0, in order of their starts.
    QList<MarkedRange> marksOfLine(qsizetype line) const;
    /// The colour of a mark's line or ground on this ground; grounds let the text shine through.
    QColor markColour(MarkKind kind) const;
    /// Where the square of a Colour mark is drawn, in the surface's own coordinates.
    QRect squareOf(const MarkedRange &mark) const;

    bool Locked() const override { return m_locked; }
    void setLocked(bool locked) override { m_locked = locked; }
    bool HideSelection() const override { return m_hideSelection; }
    void setHideSelection(bool hide) override;
    void setPaintingHeld(bool held) override;

    qsizetype lineCount() const override;
    qsizetype lineFromCharacter(qsizetype position) const override;
    std::optional<qsizetype> characterFromLine(qsizetype line) const override;
    qsizetype firstVisibleLine() const override;
    void scrollToLine(qsizetype line) override;
    void setWrapToWindow(bool wrap) override;
    bool wrapToWindow() const override;

    /// Moves the focus here if the surface's window is the active one; otherwise the surface only becomes the widget
    /// that gets the focus once its window is.
    void SetFocus() override;

    /// The character at a point of the surface, in its own coordinates; beside a line's text its nearest position,
    /// below the text as in its last row.
    qsizetype characterFromPosition(const QPoint &point) const;
    /// Where the caret stands in front of a character, in the surface's own coordinates.
    QRect positionOfCharacter(qsizetype position) const;

    /// A source line as far as it is on view: its number from 0, its top in the viewport and its first row's height.
    struct VisibleLine {
        qsizetype line = 0;
        int top = 0;
        int rowHeight = 0;
    };
    QList<VisibleLine> visibleLines() const;

    void setTabWidth(int characters);
    /// How many points the text is shown larger than its font, which it leaves alone; below 0 it is smaller. Ctrl and
    /// the wheel change it, as the desktop's keys for it do.
    int zoom() const { return m_zoom; }
    void setZoom(int points);
    void setLineNumbers(bool shown);
    bool lineNumbers() const;
    LineMargin *margin() const { return m_margin; }
    SignMargin *signs() const { return m_signs; } ///< hidden until the first mark that it shows

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    void Change();    ///< the text was changed, by the user or by the program; never for formats
    void SelChange(); ///< SelStart or SelLength is another
    void scrolled();  ///< another source line is the first visible one
    void gotFocus();
    void lostFocus();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab goes into the text
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /// Carries what is dragged to where the mouse lets it go; what the user holds no key for is the last action. A way
    /// in for those who have no mouse, as tests.
    virtual Qt::DropAction carry(QDrag &drag, Qt::DropActions actions, Qt::DropAction otherwise);

private:
    friend class SurfaceAccessible;

    /// Keeps the signals back while a step is taken that is one to the outside, and tells its outcome at the end.
    class Step
    {
    public:
        explicit Step(EditSurface *surface) : m_surface(surface) { ++m_surface->m_steps; }
        Step(const Step &) = delete;
        Step &operator=(const Step &) = delete;
        ~Step() { m_surface->endStep(); }

    private:
        EditSurface *m_surface;
    };

    /// The caret, and where the selection that ends at it was begun.
    struct Selection {
        qsizetype anchor = 0;
        qsizetype caret = 0;
        qsizetype from() const { return std::min(anchor, caret); }
        qsizetype to() const { return std::max(anchor, caret); }
        bool isEmpty() const { return anchor == caret; }
        bool operator==(const Selection &) const = default;
    };
    /// What a drag of the mouse selects by.
    enum class Unit { Character, Word, Line };
    /// Where a drag of this surface's own selection is.
    enum class OwnDrag { None, OnItsWay, CameBack };

    void endStep();
    void select(qsizetype anchor, qsizetype caret);
    void putText(qsizetype from, qsizetype to, const QString &text, const Look &look);
    void insertAtCaret(const QString &text);
    void typeAtCaret(const QString &text);
    void removeSelection();
    Look lookForText(qsizetype position) const;
    Look lookAtCaret() const;
    void tellTextChange();
    void tellSelection();
    void tellScrolling();
    void tellAccessibleChange(qsizetype from, const QString &removed, const QString &inserted);
    QColor colourFor(ColourValue colour) const;
    bool isOnDarkGround() const;
    void followGround();
    void keepSelectionColours();
    void followFont();
    QFont shownFont() const;
    void zoomByWheel(const QWheelEvent &event);
    void followView();
    void placeMargin();
    void updateAll();
    void updateMargins();
    void followRows(const std::vector<ShownRow> &rows);
    void updateLines(qsizetype first, qsizetype last);
    qreal reachOf(const ShownRow &row) const;
    void paintRow(QPainter &painter, const ShownRow &row, const QRect &clip);
    void paintSelectedBreaks(QPainter &painter, const std::vector<ShownRow> &rows);
    QList<QTextLayout::FormatRange> drawnOver(qsizetype line, const LinePiece &piece) const;
    QTextCharFormat formatOf(MarkKind kind) const;
    void paintGround(QPainter &painter, const ShownRow &row);
    void paintSquares(QPainter &painter);
    std::optional<MarkedRange> squareAt(const QPoint &point) const;
    bool showTip(const QHelpEvent &event);
    void pointAtSquare(const QPoint &point);
    QRectF caretRect() const;

    bool writes(const QKeyEvent &event);
    bool moves(const QKeyEvent &event);
    bool edits(const QKeyEvent &event);
    void moveTo(qsizetype position, bool keepAnchor);
    void moveByRows(bool down, bool keepAnchor);
    void moveByPage(bool down, bool keepAnchor);
    qsizetype lineHome() const;
    qsizetype rowEnd() const;
    void deleteTo(qsizetype position);
    void copySelection(bool primary) const;
    void pasteFrom(bool primary);
    void ensureCaretVisible();
    void showBlink(bool on);

    bool compose(const QInputMethodEvent &event, bool commits);
    void endComposing();
    qsizetype positionAt(const QPoint &point) const;
    void selectUnits(qsizetype from, qsizetype to, Unit unit);
    void dragTo(const QPoint &point);
    void startDrag();
    bool canInsertFromMimeData(const QMimeData *source) const;
    void insertFromMimeData(const QMimeData *source);
    QMimeData *createMimeDataFromSelection() const;
    bool ownerTakes(const QDropEvent &event) const;
    bool goesToItsPlace(const QDropEvent &event) const;
    void showDropPlace(std::optional<qsizetype> position);
    bool discarded(const std::function<void(SurfaceMouse &)> &hook, QMouseEvent *event);

    SurfaceHooks m_hooks;
    SurfaceText m_text;
    FormatRuns m_looks;
    TextMarks m_marks;
    mutable SurfaceView m_view; ///< laying out what is asked for is no change
    LineMargin *m_margin = nullptr;
    SignMargin *m_signs = nullptr;
    Selection m_selection;
    std::optional<Look> m_nextLook;         ///< set for the next character, until the caret moves
    std::optional<qreal> m_goalX;           ///< where moves up and down keep to, in pixels of the rows
    std::optional<qreal> m_goalY;           ///< where moves by pages keep to, in pixels of the view
    std::pair<qsizetype, qsizetype> m_told; ///< SelStart and SelLength
    qsizetype m_toldTop = 0;
    qsizetype m_toldLines = 1;
    int m_steps = 0;            ///< those being taken, one within another
    bool m_textChanged = false; ///< and not yet told by Change
    bool m_darkGround = false;  ///< the colours are drawn for a dark ground
    bool m_following = false;   ///< the scroll bars are being set
    int m_tabWidth = 4;         ///< in characters
    int m_zoom = 0;
    int m_zoomTurned = 0; ///< what the wheel was turned since the last whole step, in eighths of a degree
    bool m_wrap = false;
    bool m_locked = false;
    bool m_hideSelection = false;
    bool m_held = false;               ///< nothing is to be painted
    bool m_marginsHeld = false;        ///< and the margins will have to be
    std::vector<ShownRow> m_painted;   ///< those that the margins stand beside
    std::vector<qsizetype> m_reaching; ///< the lines of these that may stand out of their rows
    QBasicTimer m_blink;
    bool m_caretShown = false;
    int m_blinksLeft = 0; ///< until the caret stays, so that a desktop at rest is not woken
    qsizetype m_preeditCaret = 0;
    bool m_preeditCaretHidden = false;
    QPoint m_pressed; ///< where the mouse went down, in the viewport
    bool m_selecting = false;
    bool m_mayDrag = false; ///< the mouse went down on the selection
    OwnDrag m_drag = OwnDrag::None;
    std::optional<MarkedRange> m_pressedSquare;
    bool m_overSquare = false;
    Unit m_unit = Unit::Character;
    Selection m_unitStart; ///< what the press selected that a drag extends
    QElapsedTimer m_doubleClick;
    QBasicTimer m_autoScroll;
    QPoint m_dragPoint;
    std::optional<qsizetype> m_dropPlace;
};
