#pragma once

#include "common/unsavedText.h"
#include "services/timer.h"
#include "storage/recoveryFolder.h"
#include "storage/saveNotes.h"

#include <map>
#include <memory>

class Document;
struct ProgramContext;

/// Keeps unsaved text in the recovery folder, a second after the last key and every three seconds of uninterrupted
/// typing, and brings it back after an end that was not the user's.
class Recovery final : public UnsavedText
{
public:
    explicit Recovery(ProgramContext &context);
    ~Recovery() override;

    void noteChange(Document &document) override;
    void noteActivation() override;
    void forget(Document &document) override;
    QString restore(Document *opened) override;
    void keepNow() override;
    bool keepForStartAnew() override;

private:
    struct Kept {
        QString file;                   ///< where the text is kept, there or not yet
        bool changed = false;           ///< there is text that is not kept yet
        std::optional<FileStamp> stamp; ///< the state of the document's file whose digest is known
        QByteArray digest;              ///< of that state
    };
    struct Job;

    void tick();
    void keepChanged();
    std::shared_ptr<Job> keep(Document &document, Kept &kept, bool startsAnew);
    void noteResult(const Job &job);
    KeptPage pageOf(Document &document, const Kept &kept) const;
    void keepActive();

    Document *bringBack(const RecoveryFolder::Found &found);
    void keepAsBefore(Document &document);
    QString fileRemark(const KeptPage &page, Document &document) const;
    void tell(Document &document, const QString &text, bool first);
    void showWhatChanged(Document &document);
    void discard(Document &document);
    bool giveUp(Document &document);
    void forAll(bool discarded);
    void answered(Document &document);
    QString remarkOn(const QString &unreadable) const;

    ProgramContext &m_context;
    RecoveryFolder m_folder;      ///< used by the worker alone, once the start is over
    SaveNotes::Settled m_settled; ///< what had become of saves that an end had broken off
    Timer m_timer;
    std::map<const Document *, Kept> m_kept;
    QList<Document *> m_recovered;                          ///< those whose line waits for an answer, in their order
    QString m_active;                                       ///< the kept file that is noted as the active document's
    int m_ticks = 0;                                        ///< since the first change that is not kept yet
    bool m_typed = false;                                   ///< something has changed since the last tick
    std::shared_ptr<int> m_alive = std::make_shared<int>(); ///< goes with this, whatever is still on its way
    bool m_failing = false;                                 ///< the last attempt failed, and the user was told
};
