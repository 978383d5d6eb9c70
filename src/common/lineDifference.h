#pragma once

#include <QString>
#include <QStringList>

/// What changed from one text to another, by lines: "- " and a line of the old text, "+ " and a line of the new one, in
/// the order of the texts. Lines that both have are left out; texts that are alike give nothing. Texts that have next
/// to nothing in common are told as one replaced by the other, so that no pair of texts takes long.
QStringList lineDifference(const QString &oldText, const QString &newText);
