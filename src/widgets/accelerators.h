#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// The character behind the mark of a caption ("&File"), in upper case; empty for none.
QString acceleratorOf(const QString &caption);

/// The caption with its mark before the first character that is not among those, at the start of a word if it can be;
/// without a mark where all are taken.
QString withAnotherAccelerator(const QString &caption, const QStringList &taken);

/// Sees to it that no two controls that can be on show together have the same accelerator: of two, the second takes
/// another letter of its caption, or none. Labels give way to what can be pressed.
void settleAccelerators(QWidget &window);

/// The property of a control whose caption settleAccelerators() changed: the caption as it was designed.
inline constexpr const char *DesignedCaption = "designedCaption";
