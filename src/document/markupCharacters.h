#pragma once

#include <QStringView>

/// A blank within a line.
inline bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

/// What an element's name may hold while it is being typed.
inline bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || QStringView(u"-_:.").contains(c);
}
