#pragma once

#include "insertion/insertionForm.h"

#include <QList>

class QCheckBox;
class QLabel;
class NumberField;
class PictureBox;

/// The fields of a list.
struct ListFields {
    int picture = 0; ///< the number of the chosen picture: 0 to 2 are bullets, 3 to 7 numberings
    bool compact = false;
    QString size = QStringLiteral("1"); ///< the number of items; what is no number counts as 0
};

QString listMarkup(const ListFields &fields);

class frmInsList final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsList(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QWidget *bullet(int index);
    QWidget *pictures();
    void picBullet_Click(int index);
    void showChoice();
    bool keyDown(int index, int key);

    QList<PictureBox *> picBullet;
    QList<QWidget *> shpSelection;
    NumberField *txtSize = nullptr;
    QCheckBox *chkCompact = nullptr;
    QLabel *lblStartorValue = nullptr;
    int m_picture = 0; ///< the chosen picture; the next list starts with it
};
