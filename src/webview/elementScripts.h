#pragma once

#include "common/pageElement.h"

class QPointF;
class QVariant;

/// What is asked of a page about its elements. All of it runs beside the page's own scripts, which see nothing of it.

/// A script that marks the first of these elements that the page has as often as its source, and none where the path is
/// empty. The mark is an animation that stands still: it changes neither the page nor its layout.
QString markScript(const ElementPath &path);
/// A script that gives the text of the element that is marked.
QString markedTextScript();

/// A script that gives the element at a place of the view, in the page's pixels, and those around it.
QString elementScript(const QPointF &place);
/// What that has given; empty for anything else.
ElementPath pathOf(const QVariant &answer);
