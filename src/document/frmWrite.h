#pragma once

#include "common/document.h"
#include "platform/mdiForm.h"

class EditSurface;
class Timer;

/// A document window. The window is the document: it holds the source in its edit surface, and the document's
/// properties.
class frmWrite final : public MdiForm, public Document
{
    Q_OBJECT
public:
    explicit frmWrite(ProgramContext &context);

    QString documentCaption() const override { return Caption(); }
    void setDocumentCaption(const QString &caption) override { setCaption(caption); }
    TextSurface &txtEdit() override;
    bool unload() override { return Unload(); }
    void activate() override;
    void DocSelUpdate() override;
    void DocSelUpdate(const QString &path) override;
    void CheckWordWrapSettings() override;
    void UndoRedoChange() override {}
    void UpdateLineInformation() override {}
    void ExternalCallColourCode() override {}

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Activate() override;
    void detachWindow() override;

private:
    void buildControls();
    void takeNumber();
    void enterSelector();
    void addTab(const QString &caption);
    void txtEdit_Change();

    EditSurface *m_edit = nullptr;
    Timer *tmrRefresh = nullptr;
    Timer *tmrAutoSave = nullptr;
    bool m_unloading = false; ///< activation leaves this document out
};
