// Text against its ground, measured in the pictures that the program draws: in the dark, the light and a theme of high
// contrast, and with the theme changed while the program runs.
#include "common/colouringOptions.h"
#include "common/document.h"
#include "common/mainWindow.h"
#include "drive/palettes.h"
#include "forms/form.h"
#include "frame/application.h"
#include "frame/documentStatus.h"
#include "unit/support/wholeProgram.h"
#include "widgets/contrast.h"
#include "widgets/nodeTree.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QLabel>
#include <QTabBar>

namespace
{
constexpr double LeastOfText = 4.5;

struct Theme {
    const char *name;
    void (*apply)();
};
const Theme themes[] = {{"light", [] { theme::apply(theme::Light); }},
                        {"dark", [] { theme::apply(theme::Dark); }},
                        {"high contrast", [] { QApplication::setPalette(drive::highContrastPalette()); }}};

/// The contrast of what is drawn in a place to the colour that fills most of it. Strokes are smoothed, so the pixel
/// that stands out most is taken: it is where a stroke covers all of one.
double drawnContrast(const QImage &picture, const QRect &place)
{
    QHash<QRgb, int> colours;
    const QRect inside = place.intersected(picture.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++colours[picture.pixel(x, y)];
    QRgb ground = 0;
    for (auto i = colours.cbegin(); i != colours.cend(); ++i)
        ground = colours.value(ground) < i.value() ? i.key() : ground;
    double most = 1;
    for (auto i = colours.cbegin(); i != colours.cend(); ++i)
        most = std::max(most, contrast(QColor::fromRgb(i.key()), QColor::fromRgb(ground)));
    return most;
}

class ReadableThemes : public WholeProgram
{
protected:
    ~ReadableThemes() override { theme::apply(theme::Desktop); }

    QWidget &frame() { return *application->form(QStringLiteral("frmMdi"))->window(); }
    Document &document() { return *application->context().mainWindow->activeDocument(); }
    QWidget &widget(const char *name)
    {
        auto *found = frame().findChild<QWidget *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    double contrastOf(QWidget &widget) { return drawnContrast(widget.grab().toImage(), widget.rect()); }
};
} // namespace

TEST_F(ReadableThemes, DrawEveryColourOfTheSource)
{
    const ColouringOptions colours;
    const ColourValue drawn[] = {colours.ColourCodeTag,     colours.ColourCodeAttribute, colours.ColourCodeValue,
                                 colours.ColourCodeComment, colours.ColourASPCode,       colours.ColourCodeURL,
                                 WindowTextColour};
    auto &surface = dynamic_cast<QAbstractScrollArea &>(widget("txtEdit"));
    for (const Theme &theme : themes) {
        theme.apply();
        settle();
        // Strokes thick enough to cover whole pixels, and no caret among them.
        QFont font = surface.font();
        font.setPointSize(36);
        font.setBold(true);
        surface.setFont(font);
        surface.clearFocus();
        for (const ColourValue colour : drawn) {
            document().txtEdit().setText(QStringLiteral("HHHH"));
            document().txtEdit().setFormat(0, 4, {colour, {}, {}});
            settle();
            const QRect text(0, 0, 100, QFontMetrics(font).height());
            EXPECT_GE(drawnContrast(surface.viewport()->grab().toImage(), text), LeastOfText)
                << theme.name << " " << colour;
        }
    }
}

TEST_F(ReadableThemes, DrawTheNumbersOfLinesPanesTabsAndBars)
{
    document().txtEdit().setText(QStringLiteral("a\r\nb\r\nc"));
    for (const Theme &theme : themes) {
        theme.apply();
        settle();
        frame().findChild<DocumentStatus *>()->update();
        for (const char *name : {"picLineInformation", "treCodes", "lblCodePrjSelTitle", "tabCodeWindow", "tabDocSel",
                                 "lblStatusMessage", "lblCaretPlace", "lblFileFormat", "lblMsgAddress"})
            EXPECT_GE(contrastOf(widget(name)), LeastOfText) << theme.name << " " << name;
    }
}

TEST_F(ReadableThemes, HaveColoursThatGoTogether)
{
    using Role = QPalette::ColorRole;
    constexpr std::pair<Role, Role> pairs[] = {{QPalette::WindowText, QPalette::Window},
                                               {QPalette::Text, QPalette::Base},
                                               {QPalette::Text, QPalette::AlternateBase},
                                               {QPalette::ButtonText, QPalette::Button},
                                               {QPalette::Link, QPalette::Base},
                                               {QPalette::Link, QPalette::Window},
                                               {QPalette::LinkVisited, QPalette::Window},
                                               {QPalette::HighlightedText, QPalette::Highlight},
                                               {QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const Theme &theme : themes) {
        theme.apply();
        const QPalette palette = QApplication::palette();
        for (const auto &[text, ground] : pairs)
            for (const auto group : {QPalette::Active, QPalette::Inactive})
                EXPECT_GE(contrast(palette.color(group, text), palette.color(group, ground)), LeastOfText)
                    << theme.name << " " << text << " on " << ground;
        EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), LeastOfText)
            << theme.name;
    }
}

TEST_F(ReadableThemes, DrawTheTextsOfEveryForm)
{
    forEachDialog([&](Form &form) {
        present(form);
        for (const Theme &theme : themes) {
            theme.apply();
            settle();
            if (!form.window())
                return;
            for (QLabel *label : form.window()->findChildren<QLabel *>()) {
                if (!label->isVisible() || !label->isEnabled() || label->text().trimmed().isEmpty() ||
                    label->visibleRegion().isEmpty())
                    continue;
                EXPECT_GE(contrastOf(*label), LeastOfText)
                    << theme.name << " " << qPrintable(form.Name()) << " " << qPrintable(label->objectName());
            }
        }
    });
}

TEST_F(ReadableThemes, AreFollowedWhileTheProgramRuns)
{
    auto &surface = dynamic_cast<QAbstractScrollArea &>(widget("txtEdit"));
    const auto ground = [&surface] { return surface.viewport()->grab().toImage().pixelColor(200, 100).lightness(); };
    document().txtEdit().setText(QStringLiteral("a"));
    theme::apply(theme::Light);
    settle();
    EXPECT_GT(ground(), 240);
    theme::apply(theme::Dark);
    settle();
    EXPECT_LT(ground(), 60);
    theme::apply(theme::Light);
    settle();
    EXPECT_GT(ground(), 240);
}
