#include "shell/optionRows.h"

namespace
{
constexpr OptionRow rows[] = {
    {"Show Welcome screen at startup", &settings::WelcomeScreen},
    {"Show Split Editing and Preview Windows", &settings::SplitEditPreview},
    {"Show Task Manager Pane", &settings::CodeWinVis},
    {"Show Code and Font toolbar", &settings::CodeBarVis},
    {"Save window settings on exit", &settings::SaveSettingsOnExit},
    {"Word-wrap text in editing window", &settings::WordWrap},
    {"Hot-track file selection lists", &settings::HotTrackingFiles},
    {"Maintain code indentation on new lines", &settings::MaintainIndent},
    {"Add META information to new documents", &settings::AddMetaInfo},
    {"Align Task Manager Pane to the left", &settings::TaskManagerAlignLeft},
    {"Ask if a newly saved file should be added to an open Site Project", &settings::ShowAddFileToProjectQuestion},
    {"Use Internet file naming method when inserting file names", &settings::NetPathNaming},
    {"Exclude base file path whenever possible", &settings::ExcludeBasePath},
};

constexpr ColourOption syntax[] = {
    {"shpTagColour", "cmdTagColour", "lblTagColour", "HTML element colour:", &settings::ColourCodeTag},
    {"shpAttributeColour", "cmdAttributeColour", "lblAttributeColour",
     "HTML attribute colour:", &settings::ColourCodeAttribute},
    {"shpValueColour", "cmdValueColour", "lblValueColour", "HTML attribute value colour:", &settings::ColourCodeValue},
    {"shpCommentColour", "cmdCommentColour", "lblCommentColour",
     "HTML code comment colour:", &settings::ColourCodeComment},
    {"shpASPColour", "cmdASPColour", "lblASPColour", "ASP code colour:", &settings::ColourASPCode},
};

constexpr ColourOption siteMap[] = {
    {"shpLayoutLocated", "cmdLayoutLocated", "lblLayoutLocated", "Document located in Site Project",
     &settings::ColourLayoutLocated},
    {"shpLayoutNotLocated", "cmdLayoutNotLocated", "lblLayoutNotLocated", "Document not located in Site Project",
     &settings::ColourLayoutNotLocated},
    {"shpLayoutURL", "cmdLayoutURL", "lblLayoutURL", "Link to URL (http:// and shttp://)", &settings::ColourLayoutURL},
    {"shpLayoutEmailAddress", "cmdLayoutEmailAddress", "lblLayoutEmailAddress", "Link to email address",
     &settings::ColourLayoutEmail},
};
} // namespace

std::span<const OptionRow> optionRows()
{
    return rows;
}

std::span<const ColourOption> syntaxColours()
{
    return syntax;
}

ColourOption addressColour()
{
    return {"shpURLColour", "cmdURLColour", "lblURLColour", "Internet address colour:", &settings::ColourCodeURL};
}

std::span<const ColourOption> siteMapColours()
{
    return siteMap;
}
