#include "drive/monkeyWords.h"

namespace drive
{
QString MonkeyWords::text()
{
    static const QStringList pieces = {
        QStringLiteral("<p>"),
        QStringLiteral("</p>"),
        QStringLiteral("<a href=\"b.htm\">"),
        QStringLiteral("</a>"),
        QStringLiteral("<img src=\"a.gif\" alt=\"x\">"),
        QStringLiteral("<!-- "),
        QStringLiteral(" -->"),
        QStringLiteral("<table><tr><td>"),
        QStringLiteral("word "),
        QStringLiteral("    "),
        QStringLiteral("\r"),
        QStringLiteral("\r\r"),
        QStringLiteral("\""),
        QStringLiteral("<"),
        QStringLiteral(">"),
        QStringLiteral("="),
        QStringLiteral("&amp;"),
        QStringLiteral("www.example.org"),
        QStringLiteral("<% x %>"),
        QString(QChar(0xA0)),
        QString(QChar(0x141)),
        QStringLiteral("\u00E9\u4E2D"),
        QString::fromUcs4(U"\U0001F600"),
        QString(QChar(0x2028)),
        QStringLiteral("\t"),
        QStringLiteral("e\u0301\u0323"),       // a letter with two marks
        QStringLiteral("\u05D0\u05D1\u05D2 "), // from right to left
        QString(400, u'w'),
    };
    QString text;
    for (int i = below(4); i >= 0; --i)
        text += oneOf(pieces);
    return text;
}

QString MonkeyWords::fieldText()
{
    static const QStringList texts = {
        QString(),
        QStringLiteral("1"),
        QStringLiteral("0"),
        QStringLiteral("-1"),
        QStringLiteral("99999999999"),
        QStringLiteral("50%"),
        QStringLiteral("a"),
        QStringLiteral("<p>"),
        QStringLiteral("\"quoted\""),
        QStringLiteral("%SITE%/a.htm"),
        QStringLiteral("%SITE%/gone/b.htm"),
        QStringLiteral("http://127.0.0.1:1/x.htm"),
        QStringLiteral("../a.htm"),
        QStringLiteral("C:\\a\\b.htm"),
        QString(300, u'x'),
        QStringLiteral("\u0141\u00E9"),
        QStringLiteral("#FF0000"),
    };
    return oneOf(texts);
}

QString MonkeyWords::chord()
{
    static const QStringList keys = {
        QStringLiteral("Left"),
        QStringLiteral("Right"),
        QStringLiteral("Up"),
        QStringLiteral("Down"),
        QStringLiteral("Home"),
        QStringLiteral("End"),
        QStringLiteral("PageUp"),
        QStringLiteral("PageDown"),
        QStringLiteral("Enter"),
        QStringLiteral("Backspace"),
        QStringLiteral("Delete"),
        QStringLiteral("Tab"),
        QStringLiteral("Escape"),
        QStringLiteral("Space"),
        QStringLiteral("Shift+Tab"),
        QStringLiteral("Ctrl+Z"),
        QStringLiteral("Ctrl+Y"),
        QStringLiteral("Ctrl+X"),
        QStringLiteral("Ctrl+C"),
        QStringLiteral("Ctrl+V"),
        QStringLiteral("Ctrl+A"),
        QStringLiteral("Ctrl+S"),
        QStringLiteral("Ctrl+N"),
        QStringLiteral("Ctrl+F"),
        QStringLiteral("Shift+Down"),
        QStringLiteral("Shift+End"),
        QStringLiteral("Ctrl+Home"),
        QStringLiteral("Ctrl+End"),
        QStringLiteral("F1"),
        QStringLiteral("F3"),
        QStringLiteral("F5"),
        QStringLiteral("F6"),
        QStringLiteral("F8"),
        QStringLiteral("F10"),
        QStringLiteral("Alt+F"),
        QStringLiteral("Ctrl+Tab"),
        QStringLiteral("Shift+Left"),
        QStringLiteral("Shift+Up"),
        QStringLiteral("Shift+PageDown"),
        QStringLiteral("Ctrl+Left"),
        QStringLiteral("Ctrl+Right"),
        QStringLiteral("Ctrl+Shift+Left"),
        QStringLiteral("Ctrl+Shift+Home"),
        QStringLiteral("Ctrl+Shift+End"),
        QStringLiteral("Ctrl+Backspace"),
        QStringLiteral("Ctrl+Delete"),
        QStringLiteral("F4"),
        QStringLiteral("Insert"),
    };
    return oneOf(keys);
}

QString MonkeyWords::page()
{
    static const QStringList pages = {
        QStringLiteral("%SITE%/a.htm"),
        QStringLiteral("%SITE%/b.htm"),
        QStringLiteral("%SITE%/wide.htm"),
        QStringLiteral("%SITE%/mixed.htm"),
        QStringLiteral("%SITE%/site.tsp"),
        QStringLiteral("%SITE%/empty.htm"),
        QStringLiteral("%SITE%/long.htm"),
        QStringLiteral("%SITE%/gone.htm"),
        QStringLiteral("%APP%/Template/Card.ctp"),
    };
    return oneOf(pages);
}

QString MonkeyWords::newFile()
{
    static const QStringList files = {
        QStringLiteral("%SITE%/new.htm"), QStringLiteral("%SITE%/new2.htm"), QStringLiteral("%SITE%/b.htm"),
        QStringLiteral("%SITE%/a.txt"),   QStringLiteral("%SITE%/new.tsp"),  QStringLiteral("%SITE%/new"),
        QStringLiteral("/proc/x.htm"),
    };
    return oneOf(files);
}
} // namespace drive
