#include "insertion/frmInsList.h"

#include "insertion/listPictures.h"
#include "widgets/controlName.h"
#include "widgets/layout.h"
#include "widgets/numberField.h"
#include "widgets/pictureBox.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

namespace
{
constexpr int FirstNumbering = 3;
constexpr int PicturesAcross = 4;

/// The frame around a picture, over it; it leaves the mouse to the picture.
QWidget *selectionFrame(const QString &name)
{
    auto *frame = new QFrame;
    frame->setObjectName(name);
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setLineWidth(3);
    frame->setForegroundRole(QPalette::Highlight);
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    return frame;
}
} // namespace

QString listMarkup(const ListFields &fields)
{
    const bool bullets = fields.picture < FirstNumbering;
    const QString element = bullets ? QStringLiteral("ul") : QStringLiteral("ol");
    const QString compact = fields.compact ? QStringLiteral(" compact") : QString();
    return u'<' + element + QStringLiteral(" type=\"") + listPictures()[fields.picture].type + u'"' + compact + u'>' +
           QStringLiteral("\r\n    <li></li>").repeated(fields.size.toInt()) + QStringLiteral("\r\n</") + element +
           u'>';
}

frmInsList::frmInsList(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsList"),
                              .caption = QStringLiteral("Insert Bullets and Numbering"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_List.htm")})
{
}

void frmInsList::Form_Load()
{
    QWidget *choice = pictures();
    txtSize = ui::number(QStringLiteral("txtSize"), 3);
    txtSize->setText(ListFields().size);
    chkCompact = ui::check(QStringLiteral("chkCompact"), QStringLiteral("Compact Format"));
    NumberField *txtStartorValue = ui::number(QStringLiteral("txtStartorValue"), 3);
    txtStartorValue->setText(QStringLiteral("1"));
    lblStartorValue = ui::label(QStringLiteral("lblStartorValue"), {});
    setContent(ui::beside({
        ui::column({
            choice,
            ui::rows({ui::row(QStringLiteral("List Size:"),
                              ui::counted(txtSize, ui::spin(QStringLiteral("UpDown1"), txtSize, 0, 999)))}),
            chkCompact,
            ui::line({ui::hidden(lblStartorValue), ui::hidden(txtStartorValue)}),
        }),
        dialogButtons(),
    }));
    showChoice();
    picBullet[m_picture]->setFocus();
}

QWidget *frmInsList::pictures()
{
    picBullet.clear();
    shpSelection.clear();
    auto *panel = new QWidget;
    auto *grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < listPictures().size(); ++index)
        grid->addWidget(bullet(index), index / PicturesAcross, index % PicturesAcross);
    return panel;
}

QWidget *frmInsList::bullet(int index)
{
    auto *place = new QWidget;
    PictureBox *picture = ui::picture(controlName(QStringLiteral("picBullet"), index),
                                      {.click = [this, index] { picBullet_Click(index); }});
    const ListPicture &drawing = listPictures()[index];
    picture->setAccessibleName(drawing.name);
    picture->setToolTip(drawing.name);
    picture->setPaint([picture, &drawing](QPainter &painter) { drawListPicture(painter, *picture, drawing); });
    picture->setFixedSize(listPictureSize(*picture));
    ui::onKeyDown(picture, [this, index](const QKeyEvent &event) { return keyDown(index, event.key()); });
    QWidget *frame = selectionFrame(controlName(QStringLiteral("shpSelection"), index));
    auto *layout = new QGridLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picture, 0, 0);
    layout->addWidget(frame, 0, 0);
    picBullet.append(picture);
    shpSelection.append(frame);
    return place;
}

void frmInsList::picBullet_Click(int index)
{
    m_picture = index;
    showChoice();
}

void frmInsList::showChoice()
{
    for (int index = 0; index < shpSelection.size(); ++index)
        shpSelection[index]->setVisible(index == m_picture);
    lblStartorValue->setText(m_picture < FirstNumbering ? QStringLiteral("Value:") : QStringLiteral("Start:"));
}

/// The arrows choose the picture beside, as among options.
bool frmInsList::keyDown(int index, int key)
{
    const bool back = key == Qt::Key_Left || key == Qt::Key_Up;
    if (!back && key != Qt::Key_Right && key != Qt::Key_Down)
        return false;
    const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const int next = index + (back ? -1 : 1) * (sideways ? 1 : PicturesAcross);
    if (next >= 0 && next < picBullet.size()) {
        picBullet[next]->setFocus(Qt::TabFocusReason);
        picBullet_Click(next);
    }
    return true;
}

std::optional<QString> frmInsList::markup()
{
    return listMarkup({.picture = m_picture, .compact = chkCompact->isChecked(), .size = txtSize->text()});
}
