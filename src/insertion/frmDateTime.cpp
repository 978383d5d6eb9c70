#include "insertion/frmDateTime.h"

#include "insertion/dateWords.h"
#include "services/clock.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QCalendarWidget>
#include <QListWidget>

frmDateTime::frmDateTime(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmDateTime"),
                              .caption = QStringLiteral("Insert Date And Time"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Date_Time.htm")})
{
}

void frmDateTime::Form_Load()
{
    lstDateTime = ui::list(QStringLiteral("lstDateTime"), {}, [this] { confirm(); });
    monDate = ui::calendar(QStringLiteral("monDate"), [this] { fillFormats(); });
    for (QWidget *named : {static_cast<QWidget *>(monDate), monDate->focusProxy()})
        named->setAccessibleName(QStringLiteral("Date"));
    setContent(ui::beside({
        ui::line({ui::under(QStringLiteral("Available Formats:"), lstDateTime).stretched(),
                  ui::column({monDate, ui::space()})}),
        dialogButtons(),
    }));
    monDate->setSelectedDate(services().clock.now().date());
    fillFormats();
    // Wide enough for dates with longer names than today's.
    lstDateTime->setMinimumWidth(lstDateTime->sizeHintForColumn(0) * 4 / 3);
}

/// Another date changes what the rows say, not which of them is chosen.
void frmDateTime::fillFormats()
{
    const QDateTime moment(monDate->selectedDate(), services().clock.now().time());
    const int chosen = lstDateTime->selectedItems().isEmpty() ? -1 : lstDateTime->currentRow();
    lstDateTime->clear();
    for (const QString &format : dateFormats())
        lstDateTime->addItem(formattedDate(format, moment, QLocale()));
    if (chosen >= 0)
        lstDateTime->setCurrentRow(chosen);
}

std::optional<QString> frmDateTime::markup()
{
    const QList<QListWidgetItem *> chosen = lstDateTime->selectedItems();
    if (!chosen.isEmpty())
        return chosen.constFirst()->text();
    cancel(); // nothing was chosen: what is selected in the document stays
    return std::nullopt;
}
