#include "common/html/markupLanguage.h"

#include "common/html/tokenizer.h"

MarkupLanguage markupLanguage(const QString &page)
{
    html::Tokenizer tokenizer(page);
    for (;;) {
        const html::Token &token = tokenizer.next();
        if (token.kind == html::TokenKind::Doctype) {
            const bool named = token.publicId.start >= 0 &&
                               tokenizer.textOf(token.publicId).contains(QLatin1String("XHTML"), Qt::CaseInsensitive);
            return named ? MarkupLanguage::Xhtml : MarkupLanguage::Html;
        }
        if (token.kind != html::TokenKind::Comment && !token.blank) // nothing else stands before a document type
            return MarkupLanguage::Html;
    }
}
