#include "common/html/markupLanguage.h"

#include <QList>
#include <gtest/gtest.h>

TEST(MarkupLanguageOfAPage, isXhtmlByItsDocumentTypeAlone)
{
    const QList<std::pair<const char *, MarkupLanguage>> rows{
        {"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"x.dtd\"><html>", MarkupLanguage::Xhtml},
        {"<?xml version=\"1.0\"?>\r\n<!-- c -->\r\n<!doctype html public '-//W3C//DTD xhtml 1.1//EN'>",
         MarkupLanguage::Xhtml},
        {"<!DOCTYPE html><html xmlns=\"http://www.w3.org/1999/xhtml\">", MarkupLanguage::Html},
        {"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">", MarkupLanguage::Html},
        {"<html><!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\">", MarkupLanguage::Html},
        {"XHTML", MarkupLanguage::Html},
        {"", MarkupLanguage::Html},
    };
    for (const auto &[page, language] : rows)
        EXPECT_EQ(markupLanguage(QLatin1String(page)), language) << page;
}
