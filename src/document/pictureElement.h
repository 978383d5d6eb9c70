#pragma once

#include "common/html/markupLanguage.h"
#include "document/lineChange.h"

#include <QSize>
#include <QStringList>
#include <functional>

/// The endings of the files that browsers show as pictures, without their dots.
const QStringList &pictureEndings();
/// Whether a file is a picture, by its ending.
bool isPictureName(const QString &path);

/// One picture of a page.
struct PictureElement {
    QString address; ///< as it stands in addresses
    QString alt;     ///< what is read where it is not seen, as plain text
    QSize size;      ///< in pixels; an empty one is not known and not written
};
QString pictureMarkup(const PictureElement &picture, MarkupLanguage language);

/// Puts elements in place of a stretch of the text, each further one into a line of its own, as far in as the first;
/// where a tag would be torn apart, behind it. The caret goes into the first alternative text that is empty, or behind
/// all of them.
LineChange withPictures(const QString &text, TextSelection place, const QStringList &elements);

/// A name for a pasted picture that `isTaken` does not know: "picture.png", "picture-2.png" and so on.
QString freePictureName(const QString &kind, const std::function<bool(const QString &)> &isTaken);
/// What a typed name stands for: without an ending it gets that of the kind.
QString pictureNameOf(const QString &typed, const QString &kind);
/// Why a picture of a page cannot be saved under that name, seen from the page's folder; empty if it can. A name may
/// lead into a folder below, and nowhere else.
QString pictureNameFault(const QString &name);
