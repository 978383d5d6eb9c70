#pragma once

#include "common/textSurface.h"
#include "surface/surfaceFormats.h"
#include "surface/surfaceHooks.h"
#include "surface/surfaceText.h"

#include <QPlainTextEdit>

class LineMargin;

/// The edit surface of a document: a plain text widget with exactly the contract of TextSurface.
///
/// What the user and the program do to the text is told by `Change`; the `textChanged` of the base class, which also
/// tells of formats, is not to be used. Nor are the base class's operations on text (toPlainText, insertPlainText, the
/// cursor's own), which lose characters that the surface keeps.
class EditSurface : public QPlainTextEdit, public TextSurface
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
    void setLineNumbers(bool shown);
    bool lineNumbers() const;
    LineMargin *margin() const { return m_margin; }

Q_SIGNALS:
    void Change();    ///< the text was changed, by the user or by the program; never for formats
    void SelChange(); ///< SelStart or SelLength is another
    void scrolled();  ///< another source line is the first visible one
    void gotFocus();
    void lostFocus();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;

private:
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

    void endStep();
    QTextCursor cursorOver(qsizetype start, qsizetype length) const;
    void select(int anchor, int position);
    void insertAtCaret(const QString &text);
    void breakLongLines(const QString &text);
    void tellTextChange();
    void tellSelection();
    void tellScrolling();
    void keepPastChange(int from, int removed, int added);
    QColor colourFor(ColourValue colour) const;
    bool isOnDarkGround() const;
    void followGround();
    void keepSelectionColours();
    void followFont();
    void placeMargin();
    void moveMargin(const QRect &rect, int dy);
    void paintWithoutSelection(QPaintEvent *event);
    bool ownerTakes(const QDropEvent &event) const;
    bool discarded(const std::function<void(SurfaceMouse &)> &hook, QMouseEvent *event);

    SurfaceHooks m_hooks;
    SurfaceText m_text;
    SurfaceFormats m_formats;
    LineMargin *m_margin = nullptr;
    std::pair<qsizetype, qsizetype> m_toldSelection; ///< SelStart and SelLength
    qsizetype m_toldTop = 0;
    int m_steps = 0;            ///< those being taken, one within another
    bool m_formatsOnly = false; ///< what the document reports now changes no text
    bool m_textChanged = false; ///< reported by the document and not yet told by Change
    bool m_darkGround = false;  ///< the formats are drawn for a dark ground
    int m_tabWidth = 4;         ///< in characters
    bool m_locked = false;
    bool m_hideSelection = false;
};
