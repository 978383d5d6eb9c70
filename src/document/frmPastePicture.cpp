#include "document/frmPastePicture.h"

#include "common/addressText.h"
#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "document/pictureElement.h"
#include "document/pictureHands.h"
#include "forms/modLaunchHTMLHelp.h"
#include "pictures/pictureLoader.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"
#include "widgets/pictureBox.h"

#include <QBuffer>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryFile>

namespace
{
constexpr QSize LargestPreview(320, 200); // in logical pixels
constexpr int CharactersShown = 32;

/// What a picture is read as: another ending may stand for the same kind.
QString sameKind(const QString &ending)
{
    const QString kind = ending.toLower();
    return kind == u"jpeg" || kind == u"jpe" || kind == u"jfif" ? QStringLiteral("jpg") : kind;
}

/// Kinds of pictures that cannot be seen through get a white ground, as paper has it.
QImage withoutHoles(const QImage &pixels)
{
    QImage paper(pixels.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, pixels);
    return paper;
}

QByteArray encoded(const QImage &pixels, const QString &kind)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    constexpr int Quality = 90; // of those kinds that lose something
    const QImage image = kind == u"jpg" ? withoutHoles(pixels) : pixels;
    return image.save(&buffer, kind.toLatin1().constData(), kind == u"png" ? -1 : Quality) ? bytes : QByteArray();
}
} // namespace

frmPastePicture::frmPastePicture(ProgramContext &context) : DialogForm(context, QStringLiteral("frmPastePicture"))
{
    setCaption(QStringLiteral("Paste Picture"));
}

frmPastePicture::~frmPastePicture() = default;

void frmPastePicture::Form_Load()
{
    takePicture();
    txtName = ui::text(QStringLiteral("txtName"));
    txtName->setMinimumWidth(txtName->fontMetrics().averageCharWidth() * CharactersShown);
    txtAlt = ui::text(QStringLiteral("txtAlt"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/commands/mnuPastePicture.htm"));
    });
    setContent(ui::beside({
        ui::column({
            preview(),
            ui::rows({
                ui::row(QStringLiteral("&Save beside the page as:"), txtName),
                ui::row(QStringLiteral("&Alternative text:"), txtAlt),
            }),
            ui::space(),
        }),
        ui::buttons({cmdOK, cmdCancel, cmdHelp}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
    showPicture();
    const auto isTaken = [this](const QString &name) { return services().files.exists(folder() + name); };
    txtName->setText(freePictureName(m_picture.kind, isTaken));
    txtName->setFocus();
}

void frmPastePicture::Form_Unload()
{
    m_picture = {};
    m_file.reset();
    DialogForm::Form_Unload();
}

ui::Node frmPastePicture::preview()
{
    picPreview = ui::picture(QStringLiteral("picPreview"));
    picPreview->setFit(PictureBox::Fit::Stretch);
    picPreview->setAccessibleName(QStringLiteral("Preview of the picture"));
    lblSize = ui::label(QStringLiteral("lblSize"), QString());
    return ui::column(
        {ui::line({ui::space(), picPreview, ui::space()}), ui::line({ui::space(), lblSize, ui::space()})});
}

/// Other programs may empty the clipboard while the dialog is on show.
void frmPastePicture::takePicture()
{
    m_picture = services().clipboard.picture();
    m_size = {};
    m_file = std::make_unique<QTemporaryFile>();
    if (m_file->open()) {
        m_file->write(m_picture.bytes);
        m_file->close();
    }
}

void frmPastePicture::showPicture()
{
    const qreal scale = window()->devicePixelRatioF();
    const std::optional<LoadedPicture> loaded = LoadPicture(m_file->fileName(), LargestPreview * scale);
    if (!loaded) {
        lblSize->setText(QStringLiteral("The size of the picture can not be read."));
        picPreview->hide();
        return;
    }
    m_size = loaded->size;
    lblSize->setText(QStringLiteral("%L1 × %L2 pixels").arg(m_size.width()).arg(m_size.height()));
    picPreview->setVisible(!loaded->pixels.isNull());
    const bool fits = m_size.width() <= LargestPreview.width() && m_size.height() <= LargestPreview.height();
    picPreview->setFixedSize(fits ? m_size
                                  : m_size.scaled(LargestPreview, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    picPreview->setPicture(QPixmap::fromImage(loaded->pixels));
}

/// The page's, with its final separator.
QString frmPastePicture::folder() const
{
    const Document *document = frmMdi().activeDocument();
    return document ? FolderOfPath(document->DocSavePath) : QString();
}

void frmPastePicture::refuse(const QString &text)
{
    services().messageBoxes.show({.title = QStringLiteral("Paste Picture"),
                                  .text = text,
                                  .icon = MessageIcon::Exclamation,
                                  .buttons = MessageButtons::OK});
    SelectAllText(txtName);
}

void frmPastePicture::cmdOK_Click()
{
    Document *document = frmMdi().activeDocument();
    const QString name = pictureNameOf(txtName->text(), m_picture.kind);
    if (const QString fault = pictureNameFault(name); !fault.isEmpty()) {
        refuse(fault);
        return;
    }
    const QString path = folder() + name;
    if (!document || !mayWrite(path) || !writes(path))
        return;
    const PictureElement picture{
        .address = addressFromDocument(path, document->DocSavePath, true), .alt = txtAlt->text(), .size = m_size};
    WriteElements(*document, {picture}, {document->txtEdit().SelStart(), document->txtEdit().SelLength()});
    Unload();
}

/// Asks where a file of that name is there.
bool frmPastePicture::mayWrite(const QString &path)
{
    if (!services().files.exists(path))
        return true;
    const MessageBox box{
        .title = QStringLiteral("Paste Picture"),
        .text = QStringLiteral("There is a file \"%1\" already.\r\nDo you want to replace it?").arg(FileNameOnly(path)),
        .icon = MessageIcon::Question,
        .buttons = MessageButtons::YesNo,
        .byEnter = MessageAnswer::No};
    if (services().messageBoxes.show(box) == MessageAnswer::Yes)
        return true;
    SelectAllText(txtName);
    return false;
}

/// Puts the picture on the disk as a whole, or tells why it cannot be.
bool frmPastePicture::writes(const QString &path)
{
    const QByteArray bytes = bytesAs(GetFileExtension(path));
    if (bytes.isEmpty()) {
        refuse(QStringLiteral("The picture can not be saved as a file of that kind. Please let its name end in .%1.")
                   .arg(m_picture.kind));
        return false;
    }
    std::optional<FileError> error = services().files.makeFolder(withoutFinalSeparator(FolderOfPath(path)));
    if (!error)
        error = services().files.writeWhole(path, bytes);
    if (error && context().files)
        context().files->FileErrors(error->code, error->description);
    return !error;
}

/// The picture as a file with that ending; nothing if it cannot be made.
QByteArray frmPastePicture::bytesAs(const QString &ending) const
{
    const QString kind = sameKind(ending);
    if (kind == m_picture.kind || m_picture.bytes.isEmpty())
        return m_picture.bytes;
    if (kind != u"jpg" && kind != u"png" && kind != u"webp")
        return {};
    const std::optional<LoadedPicture> loaded = LoadPicture(m_file->fileName(), m_size);
    return loaded && !loaded->pixels.isNull() ? encoded(loaded->pixels, kind) : QByteArray();
}
