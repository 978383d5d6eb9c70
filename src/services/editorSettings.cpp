#include "services/editorSettings.h"

#include "services/settings.h"

#include <QFontDatabase>

#include <algorithm>

QFont editorFont(SettingsStore &store)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString family = settings::read(store, settings::EditorFont);
    if (!family.isEmpty()) {
        font.setFamily(family);
        font.setStyleHint(QFont::Monospace); // what stands in for a font that has gone
    }
    const int points = settings::read(store, settings::EditorFontSize).toInt();
    if (points > 0)
        font.setPointSize(std::clamp(points, SmallestFontSize, LargestFontSize));
    return font;
}

namespace
{
int width(SettingsStore &store, const settings::Key &key)
{
    return std::clamp(settings::read(store, key).toInt(), SmallestTabWidth, LargestTabWidth);
}
} // namespace

int tabWidth(SettingsStore &store)
{
    return width(store, settings::TabWidth);
}

IndentStyle indentStyle(SettingsStore &store)
{
    return {width(store, settings::IndentWidth), settings::isOn(store, settings::IndentWithTabs), tabWidth(store)};
}

FileFormat newDocumentFormat(SettingsStore &store, LineEnd unset)
{
    FileFormat format;
    const QString lineEnd = settings::readStored(store, settings::NewLineEnd);
    const QString encoding = settings::read(store, settings::NewEncoding);
    for (const Encoding offered : {Encoding::Utf8, Encoding::Utf8Bom, Encoding::Windows1252})
        if (encoding == encodingName({offered}))
            format.encoding = offered;
    if (lineEnd.isEmpty())
        format.lineEnd = unset;
    else if (lineEnd == lineEndName(LineEnd::Lf))
        format.lineEnd = LineEnd::Lf;
    return format;
}
