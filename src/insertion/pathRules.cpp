#include "insertion/pathRules.h"

#include "common/paths.h"
#include "forms/programContext.h"
#include "insertion/modExcludePath.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QCheckBox>

namespace
{
QCheckBox *ruleBox(SettingsStore &store, const settings::Key &key, const QString &name, const QString &caption)
{
    auto *box = ui::check(name, caption);
    box->setChecked(settings::isOn(store, key));
    QObject::connect(box, &QCheckBox::clicked,
                     [&store, &key](bool checked) { settings::writeBoolean(store, key, checked); });
    return box;
}
} // namespace

PathRules::PathRules(ProgramContext &context, const settings::Key &netPathNaming)
    : m_context(context), m_netPathNaming(netPathNaming)
{
}

ui::Node PathRules::boxes()
{
    SettingsStore &store = m_context.services.settings;
    chkExcludePath = ruleBox(store, settings::ExcludeBasePath, QStringLiteral("chkExcludePath"),
                             QStringLiteral("Exclude Base File Path"));
    chkNetPathMethod = ruleBox(store, m_netPathNaming, QStringLiteral("chkNetPathMethod"),
                               QStringLiteral("Use Internet File Naming Method"));
    return ui::column({chkExcludePath, chkNetPathMethod});
}

QString PathRules::applied(QString path) const
{
    if (chkExcludePath->isChecked())
        path = ExcludePath(m_context, path); // first: the document's folder is written as the path is
    if (chkNetPathMethod->isChecked())
        path = NetPathName(path);
    return path;
}
