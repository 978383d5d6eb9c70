#pragma once

#include "common/siteProject.h"
#include "forms/form.h"
#include "project/siteMap.h"

#include <QSet>
#include <memory>
#include <optional>

class MapPanel;
class MapScene;
class QMenu;
class QPushButton;
class Timer;

/// The map of the open site project: its pages, what they link to, and the links. It is drawn once, as the form is
/// opened.
class frmProjectLayout final : public Form
{
    Q_OBJECT
    Q_PROPERTY(int BoxCount READ BoxCount)
    Q_PROPERTY(int LineCount READ LineCount)
    Q_PROPERTY(bool BoxEnlarged READ BoxEnlarged)
    Q_PROPERTY(bool MapCancelled MEMBER m_mapCancelled)
    Q_PROPERTY(int AnimationFrame MEMBER m_animationFrame)
public:
    explicit frmProjectLayout(ProgramContext &context);
    ~frmProjectLayout() override;

    /// Maps one of the project's editor files, by its place in their list, counted from 0: its box, the boxes of its
    /// targets and the lines to them. Nothing for a place where there is none.
    void MapSiteProjectLayout(qsizetype index);

    int BoxCount() const; ///< of all boxes but the template
    int LineCount() const;
    bool BoxEnlarged() const;

    QObject *control(const QString &name) const override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void buildControls();
    QMenu *buildMenu();
    void beginMap();
    MapStyle style() const;
    void MapSelectedPages();
    QList<qsizetype> pagesToMap() const;
    bool mapPages(const QList<qsizetype> &pages);
    bool goOn();
    void mapTargets(const QString &text, const QString &name, const QString &folder);
    std::optional<QString> pageText(const QString &path) const;
    void finishMap();
    void tmrAnimate_Timer();
    void cmdCancel_Click();
    void resizeTo(int widthInTwips, int heightInTwips);

    void openBox(int box);
    QString fileOf(int box) const;
    void savePicture();
    void printMap();

    std::shared_ptr<SiteMap> m_map; ///< the window draws it until it is gone
    QList<ProjectItem> m_pages;     ///< the project's editor files as they were when the map was begun
    QSet<QString> m_projectFiles;   ///< all of the project's, by their full paths
    MapPanel *m_panel = nullptr;
    MapScene *m_scene = nullptr;
    QMenu *m_menu = nullptr;
    QPushButton *cmdCancel = nullptr;
    Timer *tmrAnimate = nullptr;
    int m_animationFrame = 1;
    bool m_mapCancelled = false;
    bool m_mapping = false;
    quint32 m_load = 0; ///< tells this load of the form from those before and behind it
};
