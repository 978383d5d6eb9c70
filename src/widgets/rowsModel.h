#pragma once

#include <QAbstractListModel>
#include <functional>

/// The rows of a list that are made when they are asked for, and not before. They must not change.
class RowsModel final : public QAbstractListModel
{
public:
    /// `text` gives a row's text, by its number from 0.
    RowsModel(std::function<int()> count, std::function<QString(int)> text, QObject *parent = nullptr)
        : QAbstractListModel(parent), m_count(std::move(count)), m_text(std::move(text))
    {
    }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_count(); }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return index.isValid() && role == Qt::DisplayRole ? m_text(index.row()) : QVariant();
    }

private:
    std::function<int()> m_count;
    std::function<QString(int)> m_text;
};
