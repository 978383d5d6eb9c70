#pragma once

#include "common/colouringOptions.h"
#include "unit/document/plainEdit.h"

#include <functional>

/// The colouring pass and the structure tree as their numbered procedure states them, one step after the other, on a
/// simulated selection. Against it the program's scanner is compared.
class ColouringReference
{
public:
    struct Node {
        QString key;
        QString text;
        QString image;
        int parent = -1;
        bool operator==(const Node &) const = default;
    };

    ColouringReference(const QString &text, const CharacterFormat &before, const ColouringOptions &options)
        : txtEdit(text, before), m_options(options)
    {
    }

    void RecolourDocument();

    /// Runs at every place at which the pass lets pending events run.
    std::function<void()> DoEvents = [] {};
    bool CancelColouring = false;
    bool structurePageVisible = false;

    PlainEdit txtEdit;
    std::vector<Node> Nodes;

private:
    void prepare();
    void tagPass();
    void values(const QString &tag, int lt);
    void aspPass();
    void linkPass();
    void ColourLinkPrefix(const QString &prefix);
    void ending();

    void AddStructureNode(const QString &t, int lt);
    void addElement(const QString &t, int start, int len);
    void addParagraph(int start, int len, int lt);
    void addAlignment(const QString &t, int start);
    void addNode(const QString &key, const QString &text, const QString &image, int parent);

    const ColouringOptions m_options;
    int m_close = 0;
    QString m_a;
};
