#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

/// A folder of its own for a test, which every user may enter; removed at the end.
class Sandbox : public testing::Test
{
protected:
    Sandbox();

    QString path(const char *name) const;
    void put(const char *name, const QByteArray &bytes) const;
    QByteArray get(const char *name) const;           ///< "(missing)" where there is no file
    QStringList names(const char *inside = "") const; ///< all that stands there, hidden files too

private:
    QTemporaryDir folder;
};

/// Runs the steps in a process of its own and gives what they return, from 0 to 125; 126 for one that was killed.
int inChild(const std::function<int()> &steps);

/// Lets a child act as a user without any rights. False where this user may not do that.
bool becomeNobody();
