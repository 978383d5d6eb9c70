#pragma once

#include "help/helpSearch.h"

#include <QListWidget>

/// The pages that a search found, each with a line of its text.
class HelpHitList final : public QListWidget
{
    Q_OBJECT
public:
    explicit HelpHitList(QWidget *parent = nullptr);

    void setHits(const QList<HelpHit> &hits);
    /// The page of a row, counted from 0; empty for no row.
    QString pageAt(int row) const;
};
