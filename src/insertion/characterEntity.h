#pragma once

#include <QString>

/// The codes of the entity grid.
constexpr int FirstEntityCode = 32;
constexpr int LastEntityCode = 255;
/// Whether the dialog of entities has one for the code.
bool hasEntity(int code);

/// The entity that the dialog writes for a character: nothing for codes that have none. By intent the blank has a
/// dollar sign where the others have an ampersand, and the last four codes go without their semicolon.
QString characterEntity(QChar character);
/// The same as it has to be: all of them closed, and the blank by its name.
QString rightCharacterEntity(QChar character);
