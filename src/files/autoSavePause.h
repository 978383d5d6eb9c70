#pragma once

#include "common/document.h"

/// Holds a document's automatic saving for as long as the user is being asked about that document: a save behind the
/// question would answer it.
class AutoSavePause
{
public:
    explicit AutoSavePause(Document &document) : m_document(document), m_wasEnabled(document.autoSaveEnabled())
    {
        m_document.setAutoSaveEnabled(false);
    }
    AutoSavePause(const AutoSavePause &) = delete;
    AutoSavePause &operator=(const AutoSavePause &) = delete;
    ~AutoSavePause()
    {
        if (m_wasEnabled)
            m_document.setAutoSaveEnabled(true);
    }

private:
    Document &m_document;
    bool m_wasEnabled;
};
