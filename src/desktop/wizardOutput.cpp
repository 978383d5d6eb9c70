#include "desktop/wizardOutput.h"

#include "common/encodings.h"

#include <QRegularExpression>

namespace
{
const QString Break = QStringLiteral("\r\n");

/// Takes one header line in; false if it is none. Headers that are not known are passed over: a wizard may be made for
/// a later version of the program.
bool readHeader(const QString &line, WizardOutput &output)
{
    static const QRegularExpression form(QStringLiteral("^([A-Za-z][A-Za-z0-9-]*):[ \\t]*(.*?)[ \\t]*$"));
    const QRegularExpressionMatch header = form.match(line);
    if (!header.hasMatch())
        return false;
    if (header.captured(1).compare(QStringLiteral("WizardDataToNewDoc"), Qt::CaseInsensitive) != 0)
        return true;
    const QString value = header.captured(2).toLower();
    output.toNewDoc = value == u"true";
    return output.toNewDoc || value == u"false";
}

QString withoutFinalBreak(const QString &text)
{
    return text.endsWith(Break) ? text.chopped(Break.size()) : text;
}
} // namespace

std::optional<WizardOutput> readWizardOutput(const QByteArray &bytes)
{
    if (bytes.size() > LargestWizardOutput || bytes.contains('\0'))
        return std::nullopt;
    const QString text = decodeOwnFile(bytes);
    WizardOutput output;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype found = text.indexOf(Break, start);
        const qsizetype end = found < 0 ? text.size() : found;
        const qsizetype next = found < 0 ? text.size() : found + Break.size();
        if (end == start) {
            output.data = withoutFinalBreak(text.sliced(next));
            return output;
        }
        if (!readHeader(text.sliced(start, end - start), output))
            return std::nullopt;
        start = next;
    }
    return output;
}
