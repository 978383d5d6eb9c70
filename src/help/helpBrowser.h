#pragma once

#include <QTextBrowser>

class HelpFolder;

/// Shows the pages of the help, and goes back and forward through them. What leads out of the help is told, not
/// followed.
class HelpBrowser final : public QTextBrowser
{
    Q_OBJECT
public:
    /// The folder outlives the browser.
    explicit HelpBrowser(HelpFolder &folder, QWidget *parent = nullptr);

    /// Shows a page, or the one that says that the topic is missing.
    void showPage(const QString &page);
    /// The page on show; empty before the first one.
    QString page() const;

    int zoom() const { return m_zoom; }
    /// The text's size, in points above or below that of the desktop's font; kept between -4 and 12.
    void setZoom(int points);

Q_SIGNALS:
    void linkOutside(const QUrl &url);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void follow(const QUrl &url);
    void applyTheme();

    HelpFolder &m_folder;
    int m_zoom = 0;
};
