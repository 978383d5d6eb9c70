#pragma once

#include "forms/dialogForm.h"
#include "services/clipboard.h"

#include <QSize>
#include <memory>

class PictureBox;
class QLabel;
class QLineEdit;
class QTemporaryFile;

/// Asks for the name of the picture on the clipboard, saves it in the folder of the active document's page, and writes
/// its element there.
class frmPastePicture final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmPastePicture(ProgramContext &context);
    ~frmPastePicture() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    ui::Node preview();
    void takePicture();
    void showPicture();
    void cmdOK_Click();
    QString folder() const;
    bool mayWrite(const QString &path);
    bool writes(const QString &path);
    QByteArray bytesAs(const QString &ending) const;
    void refuse(const QString &text);

    ClipboardPicture m_picture;
    std::unique_ptr<QTemporaryFile> m_file; ///< holds it for the reader of pictures
    QSize m_size;                           ///< its own; empty if it cannot be read
    PictureBox *picPreview = nullptr;
    QLabel *lblSize = nullptr;
    QLineEdit *txtName = nullptr;
    QLineEdit *txtAlt = nullptr;
};
