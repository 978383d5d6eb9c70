#pragma once

#include <QString>

/// A tip that shows the text as it stands, in as many lines; empty for none. What is shown as a tip otherwise counts as
/// markup as soon as a tag is in it, and our tips are about tags.
QString plainTip(const QString &text);
