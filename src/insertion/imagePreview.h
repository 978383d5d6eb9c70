#pragma once

#include "widgets/layout.h"

#include <QSize>

class PictureBox;
class QStackedWidget;

/// The part of a dialog that shows an image and knows its own size. Made anew with the form's controls.
class ImagePreview
{
public:
    /// Builds `imgPreview` in its frame, the stand-by text `lblNoPicture` and the hidden `imgProcess`, which has the
    /// image's own size; once a load of the form.
    ui::Node build();

    /// Shows the image in the file at its own size; false, and nothing changed, if it is no image. A huge one is
    /// measured, but the stand-by text is shown.
    bool show(const QString &file);
    void clear();

    /// In pixels; of the image shown last.
    QSize actualSize() const;
    /// Sizes the image by what the fields for it hold: numbers of pixels, or in percent of its own size. An empty field
    /// of pixels leaves the side as it is.
    void resize(const QString &width, const QString &height, bool inPercent);

private:
    PictureBox *imgProcess = nullptr;
    PictureBox *imgPreview = nullptr;
    QStackedWidget *m_pages = nullptr; ///< the stand-by text, and the image in its frame
};
