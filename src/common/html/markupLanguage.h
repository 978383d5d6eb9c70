#pragma once

#include <QString>

/// What a page's markup is read as, which its document type says.
enum class MarkupLanguage { Html, Xhtml };

/// That of a page: XHTML where the public name in its document type says so, else HTML.
MarkupLanguage markupLanguage(const QString &page);
