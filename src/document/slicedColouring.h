#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <memory>

class EditSurface;
class PageColours;
class Timer;
struct FormatRange;
struct ProgramContext;

/// Colours a document of any size without holding anything up: what is on show at once, and the rest in slices, between
/// which events run. It touches nothing but colours. A change of the text ends it, and it begins again after a pause.
class SlicedColouring final : public QObject
{
    Q_OBJECT
public:
    /// What a slice takes, whatever stands in the text: a jump may have to wait for one.
    static constexpr qint64 SliceMilliseconds = 2;

    SlicedColouring(EditSurface &edit, ProgramContext &context);
    ~SlicedColouring() override;

    /// Begins anew with the text as it stands.
    void begin();

private:
    void textChanged();
    void stop();
    void nextSlice();
    void colourView();
    void slice(int round);

    QPointer<EditSurface> m_edit;
    ProgramContext &m_context;
    std::unique_ptr<PageColours> m_page; ///< nothing once all is coloured, or the text is another
    Timer *tmrColourSoon;
    int m_round = 0; ///< of the slices that are on their way
};
