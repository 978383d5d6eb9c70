#pragma once

#include "common/textSurface.h"

#include <QColor>
#include <QHash>
#include <QTextCharFormat>
#include <functional>

class QTextDocument;

/// The colours of a document, held as its character formats. Ranges are in the document's positions, from 0 and with
/// the end behind the last character.
class SurfaceFormats
{
public:
    struct Range {
        int from = 0;
        int to = 0;
        TextFormat format;
    };

    /// `painted` tells with which colour a value is drawn; it is not asked for WindowTextColour, which follows the
    /// theme.
    SurfaceFormats(QTextDocument *document, std::function<QColor(ColourValue)> painted)
        : m_document(document), m_painted(std::move(painted))
    {
    }

    /// Lays the ranges over what is there, later ones over earlier ones. The document is touched only where a character
    /// comes to look different.
    void apply(const QList<Range> &ranges);
    /// Draws what is there anew, once values have come to be drawn with other colours.
    void redraw();
    /// What all characters of a range have in common.
    TextFormat read(int from, int to) const;
    TextFormat read(const QTextCharFormat &format) const;
    /// The format that a character put in at a position would take.
    TextFormat at(int position) const;
    QTextCharFormat changed(const QTextCharFormat &format, const TextFormat &change) const;
    /// To be called when the document has been emptied, and its formats with it.
    void forget() { m_looks.clear(); }

private:
    struct Look {
        ColourValue colour = WindowTextColour;
        bool bold = false;
        bool underline = false;
        quint16 hidden = 0;
        bool operator==(const Look &) const = default;
    };
    struct Change {
        int from;
        int to;
        Look look;
    };

    static Look lookOf(const QTextCharFormat &format);
    static Look merged(Look look, const TextFormat &change);
    Look lookOf(int formatIndex) const;
    const QTextCharFormat &formatOf(const Look &look) const;
    bool changesNoLook(const TextFormat &format) const;
    std::vector<Change> changesFor(const std::vector<Range> &segments) const;
    template <typename Visit>
    void forEachRun(int from, int to, Visit visit) const;

    QTextDocument *m_document;
    std::function<QColor(ColourValue)> m_painted;
    mutable QHash<int, Look> m_looks; ///< by the document's index of the format
    mutable QHash<quint64, QTextCharFormat> m_charFormats;
};
