#pragma once

#include "common/fileStamp.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <optional>

class Document;
struct ProgramContext;

/// Notices that other programs change, remove or bring back the files of open documents, and tells it in the line above
/// the text. Nothing of the document changes before the user says so, but where the settings let documents without
/// changes load by themselves.
class OutsideChanges final : public QObject
{
public:
    explicit OutsideChanges(ProgramContext &context);

    /// The document's file was just read or written here, and holds these bytes.
    void noteBytes(const Document &document, const QByteArray &bytes);
    /// The document was brought back with a word on the state of its file: that state is told already.
    void noteTold(const Document &document);
    /// Looks whether the document's file is as it was.
    void look(Document &document);
    /// The document is closed.
    void forget(const Document &document);

private:
    struct Known {
        std::optional<quint64> contents;    ///< tells the bytes that the document was read from or saved as
        bool isTold = false;                ///< the state below was told, or looked at and found to be no change
        std::optional<FileStamp> told = {}; ///< nothing: the file is gone
    };

    void follow();
    void lookAtAll();
    bool isChanged(const Document &document, const std::optional<FileStamp> &now) const;
    void tell(Document &document, bool gone);
    void loadAgain(Document &document);

    ProgramContext &m_context;
    QHash<const Document *, Known> m_known;
    QStringList m_followed;
};
