#include "frame/documentStatus.h"

#include "common/document.h"
#include "common/documentEncoding.h"
#include "common/fileFormatText.h"
#include "common/mainWindow.h"
#include "widgets/controls.h"

#include <QAbstractEventDispatcher>
#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>
#include <algorithm>

namespace
{
constexpr Encoding Offered[] = {Encoding::Utf8, Encoding::Utf8Bom, Encoding::Windows1252, Encoding::Utf16LE,
                                Encoding::Utf16BE};
constexpr LineEnd LineEnds[] = {LineEnd::CrLf, LineEnd::Lf, LineEnd::Cr};
} // namespace

QString caretPlaceText(const Document &document)
{
    const TextSurface &text = document.txtEdit();
    const qsizetype caret = text.SelStart() + text.SelLength();
    const qsizetype line = text.lineFromCharacter(caret);
    const qsizetype column = caret - text.characterFromLine(line).value_or(caret);
    return QStringLiteral("Line %1, column %2").arg(line + 1).arg(column + 1);
}

FileFormat formatOfNextSave(const Document &document)
{
    return formatOfDocument(document, encodingOfDocument(document));
}

bool chooseFormat(Document &document, const FileFormat &format)
{
    if (!charactersThatDoNotFit(document.txtEdit().Text(), format).isEmpty())
        return false;
    document.IsInUnicode = isUtf16(format.encoding);
    if (!document.IsInUnicode)
        document.plainEncoding = format.encoding;
    document.fileFormat = format;
    document.mixedLineEnds = false;
    document.boolDirty = true;
    return true;
}

DocumentStatus::DocumentStatus(QStatusBar &bar, MainWindow &mainWindow)
    : QObject(&bar),
      m_mainWindow(mainWindow),
      m_place(ui::label(QStringLiteral("lblCaretPlace"), {})),
      m_format(new QToolButton),
      m_menu(new QMenu(m_format))
{
    m_place->setTextFormat(Qt::PlainText);
    m_place->setAutoFillBackground(true); // so that the bars behind it are not painted at each key
    m_format->setObjectName(QStringLiteral("lblFileFormat"));
    m_format->setAutoRaise(true);
    m_format->setToolTip(QStringLiteral("Encoding and line end of the file"));
    m_menu->setObjectName(QStringLiteral("mnuFileFormat"));
    bar.addPermanentWidget(m_place);
    bar.addPermanentWidget(m_format);
    connect(m_menu, &QMenu::aboutToShow, this, &DocumentStatus::fillMenu);
    // The button's own way of showing a menu would hold up whoever clicks until the menu is left.
    connect(m_format, &QToolButton::clicked, this, &DocumentStatus::showMenu);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &DocumentStatus::update);
}

void DocumentStatus::showFormat(const QString &text)
{
    m_format->setText(text);
    m_format->setVisible(!text.isEmpty());
}

void DocumentStatus::update()
{
    const Document *document = m_mainWindow.activeDocument();
    m_place->setVisible(document != nullptr);
    if (!document)
        return;
    if (const QString told = caretPlaceText(*document); told != m_place->text())
        showPlace(told);
}

/// A label whose text changes has the whole window laid out anew, unless its size is fixed. It is for as many figures
/// as there are, so most keys change none.
void DocumentStatus::showPlace(const QString &text)
{
    if (text.size() != m_place->text().size() || m_place->font() != m_fitted) {
        QString widest = text;
        std::replace_if(
            widest.begin(), widest.end(), [](QChar c) { return c.isDigit(); }, u'0');
        m_fitted = m_place->font();
        m_place->setFixedSize(m_place->fontMetrics().size(Qt::TextSingleLine, widest));
    }
    m_place->setText(text);
}

/// Above the button, since the bar is at the window's lower edge.
void DocumentStatus::showMenu()
{
    fillMenu();
    m_menu->popup(m_format->mapToGlobal(QPoint(0, -m_menu->sizeHint().height())));
}

void DocumentStatus::fillMenu()
{
    m_menu->clear();
    const Document *document = m_mainWindow.activeDocument();
    if (!document)
        return;
    const FileFormat now = formatOfNextSave(*document);
    m_menu->addSection(QStringLiteral("Encoding"));
    for (const Encoding encoding : Offered) {
        const FileFormat format{encoding, now.lineEnd, {}};
        addChoice(encodingName(format), format);
    }
    if (now.encoding == Encoding::Other)
        addChoice(encodingName(now), now);
    m_menu->addSection(QStringLiteral("Line end"));
    for (const LineEnd lineEnd : LineEnds)
        addChoice(lineEndName(lineEnd), {now.encoding, lineEnd, now.charset});
}

void DocumentStatus::addChoice(const QString &text, const FileFormat &format)
{
    const Document &document = *m_mainWindow.activeDocument();
    QAction *entry = m_menu->addAction(text, this, [this, format] { choose(format); });
    entry->setCheckable(true);
    const FileFormat now = formatOfNextSave(document);
    entry->setChecked(format == now);
}

void DocumentStatus::choose(const FileFormat &format)
{
    Document *document = m_mainWindow.activeDocument();
    if (!document || (format == formatOfNextSave(*document) && !document->mixedLineEnds))
        return;
    const QString name = encodingName(format);
    if (chooseFormat(*document, format)) {
        showFormat(fileFormatText(*document));
        m_mainWindow.SetStatusText(
            QStringLiteral("The next save writes this page as %1 with %2.").arg(name, lineEndName(format.lineEnd)));
    } else {
        m_mainWindow.SetStatusText(
            QStringLiteral("%1 has no place for all characters of this page, so its encoding stays as it is.")
                .arg(name));
    }
    document->txtEdit().SetFocus();
}
