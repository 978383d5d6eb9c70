#include "project/fileReference.h"

#include "project/fileIcons.h"

#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(ReferenceDialog, IsChosenByTheExtension)
{
    const struct {
        const char *extensions;
        ReferenceDialog dialog;
    } rows[] = {
        {"WAV MP3 AIF AIFC AIFF AU SND MID RMI", {q("frmInsBgSound"), q("txtBgSound")}},
        {"GIF JPG JPEG BMP DIB ICO CUR", {q("frmInsImage"), q("cboSrc")}},
        {"MPG MPEG MOV QT AVI RM RA RAM", {q("frmInsVideo"), q("txtPath")}},
        {"EXE COM ZIP GZ TZ TAZ TGZ LZH ARJ ARC TAR CAB HTM HTML PDF PNG", {q("frmInsHyperlink"), q("cboUrl")}},
    };
    for (const auto &row : rows)
        for (const QString &extension : q(row.extensions).split(u' ')) {
            EXPECT_EQ(referenceDialogFor(q("/s/x.") + extension), row.dialog) << extension.toStdString();
            EXPECT_EQ(referenceDialogFor(q("/s/x.") + extension.toLower()), row.dialog) << extension.toStdString();
        }
}

TEST(ReferenceDialog, OfANameWithoutExtensionIsTheHyperlinks)
{
    EXPECT_EQ(referenceDialogFor(q("/s/README")).form, q("frmInsHyperlink"));
    EXPECT_EQ(referenceDialogFor(q("/s.gif/README")).form, q("frmInsHyperlink"));
    EXPECT_EQ(referenceDialogFor(q("/s/README.")).form, q("frmInsHyperlink"));
}

TEST(LocalFileIcon, IsChosenByTheExtension)
{
    const struct {
        const char *name;
        int icon;
    } rows[] = {{"a.htm", 1}, {"a.html", 1}, {"a.gif", 3}, {"a.jpg", 4}, {"a.exe", 5},  {"a.ico", 6}, {"a.cab", 7},
                {"a.zip", 7}, {"a.txt", 8},  {"a.bmp", 9}, {"a.png", 2}, {"README", 2}, {"a.HTM", 1}, {"a.jpeg", 2}};
    for (const auto &row : rows)
        EXPECT_EQ(localFileIcon(q("/s/") + q(row.name)), row.icon) << row.name;
}
} // namespace
