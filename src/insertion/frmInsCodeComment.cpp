#include "insertion/frmInsCodeComment.h"

#include "widgets/layout.h"

#include <QPlainTextEdit>

QString commentMarkup(const QString &comment)
{
    const QString lineBreak = comment.contains(u'\r') ? QStringLiteral("\r\n") : QString();
    return QStringLiteral("<!--") + lineBreak + comment + lineBreak + QStringLiteral("-->");
}

frmInsCodeComment::frmInsCodeComment(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsCodeComment"),
                              .caption = QStringLiteral("Insert Code Comment"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_CodeComment.htm")})
{
}

void frmInsCodeComment::Form_Load()
{
    txtComment = ui::textArea(QStringLiteral("txtComment"));
    setContent(ui::beside({ui::under(QStringLiteral("Comment:"), txtComment), dialogButtons()}));
}

std::optional<QString> frmInsCodeComment::markup()
{
    return commentMarkup(ui::textOf(*txtComment));
}
