#pragma once

#include <QList>
#include <QString>
#include <functional>

/// What stands first where a document has more than one thing to tell.
enum class NoticeKind {
    Recovery, ///< its text was brought back after an unexpected end
    Outside,  ///< its file was changed by another program
    Other,
};

/// An answer that a notice offers.
struct NoticeButton {
    QString caption;                    ///< as it is shown; a "&" in it is a "&"
    std::function<void()> pressed = {}; ///< runs once the notice has gone, or with the notice still there
    bool enabled = true;
    bool answers = true; ///< the notice goes with it; otherwise it stays until `pressed` takes it away
};

/// One thing that a document tells above its text, without a box and without taking the focus.
struct Notice {
    QString key; ///< what it is about: a newer one of the same key takes its place
    NoticeKind kind = NoticeKind::Other;
    QString text;
    QList<NoticeButton> buttons;
};

/// What a document has to tell above its text: one notice at a time, by kind and then in the order of coming. The next
/// one comes when the first is answered or taken away; one of a kind that stands before it comes at once.
class Notices
{
public:
    using Watcher = std::function<void()>;

    Notices() = default;
    Notices(const Notices &) = delete;
    Notices &operator=(const Notices &) = delete;

    /// Adds a notice. One with the same key gives way to it, and leaves it its place if it is of the same kind.
    void put(const Notice &notice);
    /// Takes the notice of that key away; nothing where there is none.
    void remove(const QString &key);
    bool holds(const QString &key) const;
    bool isEmpty() const { return m_waiting.isEmpty(); }

    /// The notice that is on show; nothing where there is none. Valid until the next change.
    const Notice *current() const { return m_waiting.isEmpty() ? nullptr : &m_waiting.first(); }
    /// Presses a button of the notice on show, counted from 0; nothing for a disabled one or one that is not there.
    void press(int button);

    /// Runs `changed` whenever another notice, or another state of it, is to be shown; one watcher at a time.
    void watch(Watcher changed) { m_changed = std::move(changed); }

private:
    qsizetype indexOf(const QString &key) const;
    void insert(const Notice &notice);
    void tell() const;

    QList<Notice> m_waiting; ///< the first one is on show
    Watcher m_changed;
};
