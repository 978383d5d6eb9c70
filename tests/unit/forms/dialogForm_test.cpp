#include "forms/dialogForm.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "surface/editSurface.h"
#include "unit/support/testDesktop.h"

#include <QPoint>
#include <QWidget>
#include <gtest/gtest.h>

namespace
{
class NotedSurface final : public EditSurface
{
public:
    explicit NotedSurface(QStringList &notes) : m_notes(notes) {}
    void SetFocus() override { m_notes << QStringLiteral("focus"); }

private:
    QStringList &m_notes;
};

class NotedDocument final : public Document
{
public:
    explicit NotedDocument(QStringList &notes) : m_notes(notes), m_surface(notes) {}
    QString documentCaption() const override { return {}; }
    void setDocumentCaption(const QString &) override {}
    TextSurface &txtEdit() override { return m_surface; }
    bool unload() override { return true; }
    void activate() override {}
    void DocSelUpdate() override {}
    void DocSelUpdate(const QString &) override {}
    bool autoSaveEnabled() const override { return false; }
    void setAutoSaveEnabled(bool) override {}
    void CheckWordWrapSettings() override {}
    void UndoRedoChange() override { m_notes << QStringLiteral("history"); }
    void Undo() override {}
    void Redo() override {}
    UndoRedo IsUndoRedoPossible() const override { return {}; }
    int UndoPosition() const override { return 1; }
    void IndentText(bool) override {}
    void OptimiseSyntax() override {}
    void UpdateLineInformation() override { m_notes << QStringLiteral("lines"); }
    void ExternalCallColourCode() override { m_notes << QStringLiteral("colour"); }

private:
    QStringList &m_notes;
    NotedSurface m_surface;
};

class NotedMainWindow final : public MainWindow
{
public:
    NotedMainWindow() { OpenDocumentCount = 1; }
    bool Enabled() const override { return m_enabled; }
    void setEnabled(bool enabled) override
    {
        m_enabled = enabled;
        notes << (enabled ? QStringLiteral("enabled") : QStringLiteral("disabled"));
    }
    QList<Document *> openDocuments() const override { return {}; }
    Document *activeDocument() const override { return OpenDocumentCount ? &m_document : nullptr; }
    void SetStatusText(const QString &) override {}
    void SetStatusReady() override {}
    QString statusText() const override { return {}; }
    void enableResetBar() override {}
    void showFileFormat(const QString &) override {}
    void showRecentFiles(const QStringList &) override {}
    void SetDocumentControlsEnabled(bool) override {}
    void addDocumentTab(const QString &, const QString &) override {}
    void removeDocumentTab(const QString &) override {}
    void selectDocumentTab(const QString &) override {}
    void showDocumentTabs(bool) override {}
    void showDocumentSelector(bool) override {}
    void setWordWrapChecked(bool) override {}
    QPoint insertBarDrop() const override { return {}; }
    void setInsertBarPressed(bool) override {}
    void PopupMenu(const QString &, const QPoint &) override {}
    bool MoveToNextPane(Qt::Key, FocusPlace) override { return false; }
    void clearStructureTree() override {}
    bool structurePageShown() const override { return false; }
    void addStructureNode(qsizetype, const QString &, const QString &, const QString &) override {}

    QStringList notes;

private:
    bool m_enabled = true;
    mutable NotedDocument m_document{notes};
};

class NotedDialog final : public DialogForm
{
public:
    NotedDialog(ProgramContext &context, QStringList &notes)
        : DialogForm(context, QStringLiteral("frmNoted")), m_notes(notes)
    {
    }
    void pressCancel() { cancel(); }

protected:
    void Form_Load() override { m_notes << QStringLiteral("load"); }

private:
    QStringList &m_notes;
};

class DialogFormTest : public testing::Test
{
protected:
    DialogFormTest() { desktop.context().mainWindow = &mainWindow; }
    ~DialogFormTest() override { dialog.discard(); }

    QStringList notes() { return std::exchange(mainWindow.notes, {}); }

    TestDesktop desktop;
    NotedMainWindow mainWindow;
    NotedDialog dialog{desktop.context(), mainWindow.notes};
};

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

TEST_F(DialogFormTest, DisablesTheMainWindowBeforeItLoadsAndIsModeless)
{
    dialog.Show();
    EXPECT_EQ(notes(), words("disabled load"));
    EXPECT_EQ(dialog.window()->windowModality(), Qt::NonModal);
}

TEST_F(DialogFormTest, GivesTheProgramBackInAFixedOrder)
{
    dialog.Show();
    notes();
    dialog.Unload();
    EXPECT_EQ(notes(), words("enabled history focus colour"));
    EXPECT_FALSE(desktop.context().state.DialogCancelled);
}

TEST_F(DialogFormTest, ColoursNothingAfterACancelButRecordsItAllTheSame)
{
    dialog.Show();
    notes();
    dialog.pressCancel();
    EXPECT_EQ(notes(), words("enabled history focus lines"));
    EXPECT_FALSE(desktop.context().state.DialogCancelled);
}

TEST_F(DialogFormTest, WithoutADocumentOnlyEnablesAndKeepsTheCancel)
{
    dialog.Show();
    notes();
    mainWindow.OpenDocumentCount = 0;
    dialog.pressCancel();
    EXPECT_EQ(notes(), words("enabled"));
    EXPECT_TRUE(desktop.context().state.DialogCancelled) << "meant to stay for the next dialog";
}
} // namespace
