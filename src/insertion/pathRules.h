#pragma once

#include <QString>

class QCheckBox;
struct ProgramContext;
namespace settings
{
struct Key;
}
namespace ui
{
class Node;
}

/// The two rules by which a chosen file becomes the text of a `src` or `href`: without the document's folder, and with
/// slashes. Both are check boxes that stand as the settings do; a click stores the choice at once, confirmed or not.
class PathRules
{
public:
    /// `netPathNaming` is the key under which this dialog keeps the choice of slashes: dialogs of one key share it.
    PathRules(ProgramContext &context, const settings::Key &netPathNaming);

    /// Builds `chkExcludePath` and `chkNetPathMethod`, once a load of the form.
    ui::Node boxes();

    /// The path by the rules that are checked.
    QString applied(QString path) const;

private:
    ProgramContext &m_context;
    const settings::Key &m_netPathNaming;
    QCheckBox *chkExcludePath = nullptr;
    QCheckBox *chkNetPathMethod = nullptr;
};
