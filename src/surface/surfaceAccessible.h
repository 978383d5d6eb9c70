#pragma once

#include <QAccessibleWidget>

class EditSurface;

/// What assistive technology reads and does in an edit surface. Its offsets count a break as one character.
class SurfaceAccessible final : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface
{
public:
    explicit SurfaceAccessible(EditSurface *surface);

    /// Lets surfaces be found; further calls do nothing.
    static void install();
    /// Whether anybody listens, so that what has changed is worth telling.
    static bool isWatched() { return QAccessible::isActive(); }
    /// Tells that text at an offset has given way to another one.
    static void tellChange(EditSurface *surface, qsizetype offset, const QString &removed, const QString &inserted);
    static void tellSelection(EditSurface *surface);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int at) override;
    QString text(int start, int end) const override;
    QString textBeforeOffset(int at, QAccessible::TextBoundaryType by, int *start, int *end) const override;
    QString textAfterOffset(int at, QAccessible::TextBoundaryType by, int *start, int *end) const override;
    QString textAtOffset(int at, QAccessible::TextBoundaryType by, int *start, int *end) const override;
    int characterCount() const override;
    QRect characterRect(int at) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int at, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int at, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    EditSurface &surface() const;
    qsizetype position(int offset) const;
    int offset(qsizetype position) const;
    QString unitAt(int at, QAccessible::TextBoundaryType by, int *start, int *end) const;
};
