#pragma once

#include <QString>

/// What a row of the Open dialog opens its file as. The row decides, not the file's extension.
enum class OpenAs { Text, UnicodeText, Template, CombinedTemplate, SiteProject };
/// What a row of the Save As dialog saves the document as.
enum class SaveAs { Text, UnicodeText, CombinedTemplate, TextWithoutTags };

constexpr int PreselectedRow = 2; ///< of both dialogs

/// The dialogs' filters, "Description|patterns|Description|patterns".
QString openFilter();
QString saveFilter();

/// What a row does, counted from 1; a row that is not there counts as plain text.
OpenAs openAs(int filterIndex);
SaveAs saveAs(int filterIndex);
