#include "storage/documentCopy.h"

#include "unit/support/fakes.h"

namespace
{
class DocumentCopyTest : public FilesTest
{
protected:
    DocumentCopy copyOf(const Document &document)
    {
        return writeDocumentCopy(context.services, document, QStringLiteral("copy.html"));
    }
};

TEST_F(DocumentCopyTest, IsTheTextAsItStandsInTheProgramsFolder)
{
    FakeDocument &document = newDocument();
    document.surface.setText(QStringLiteral("one\r\ntwo"));
    const DocumentCopy copy = copyOf(document);
    EXPECT_FALSE(copy.error);
    EXPECT_EQ(copy.path, path(QStringLiteral("copy.html")));
    EXPECT_EQ(bytesOf(QStringLiteral("copy.html")), QByteArray("one\r\ntwo"));
    document.surface.setText(QStringLiteral("3"));
    copyOf(document);
    EXPECT_EQ(bytesOf(QStringLiteral("copy.html")), QByteArray("3"));
}

TEST_F(DocumentCopyTest, HasTheEncodingOfASave)
{
    const struct {
        const char *file; ///< bytes as hexadecimal digits
        const char *copy; ///< after a euro sign was put in front
    } rows[] = {
        {"C3A9", "E282ACC3A9"},             // UTF-8
        {"EFBBBFC3A9", "EFBBBFE282ACC3A9"}, // with its mark
        {"E9E8", "80E9E8"},                 // Windows-1252
        {"610A62", "E282AC610D0A62"},       // lone line feeds come out as the text has them
    };
    for (const auto &row : rows) {
        const QString name = QLatin1String(row.file) + QStringLiteral(".htm");
        FakeDocument &document = openedDocument(name, QByteArray::fromHex(row.file));
        document.surface.setText(QChar(0x20AC) + document.surface.Text());
        copyOf(document);
        EXPECT_EQ(bytesOf(QStringLiteral("copy.html")).toHex().toUpper(), QByteArray(row.copy)) << row.file;
    }
}

TEST_F(DocumentCopyTest, OfAUnicodeDocumentIsInUtf16WithItsMark)
{
    FakeDocument &document = newDocument();
    document.surface.setText(QStringLiteral("a"));
    document.IsInUnicode = true;
    copyOf(document);
    EXPECT_EQ(bytesOf(QStringLiteral("copy.html")), QByteArray::fromHex("FFFE6100"));
    document.fileFormat.encoding = Encoding::Utf16BE;
    copyOf(document);
    EXPECT_EQ(bytesOf(QStringLiteral("copy.html")), QByteArray::fromHex("FEFF0061"));
}

TEST_F(DocumentCopyTest, TellsWhyItCouldNotBeWritten)
{
    FakeDocument &document = newDocument();
    disk.writeFailure = FileError{DiskFullError, 0, QStringLiteral("full")};
    const DocumentCopy copy = copyOf(document);
    ASSERT_TRUE(copy.error);
    EXPECT_EQ(copy.error->code, DiskFullError);
}
} // namespace
