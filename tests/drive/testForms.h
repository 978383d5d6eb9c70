#pragma once

#include <QStringList>
#include <memory>

class Form;
struct ProgramContext;

namespace drive
{
/// A form that no user sees, made to try forms, services and the driver itself; nothing for an unknown name.
/// `test-form` shows one.
std::unique_ptr<Form> makeTestForm(ProgramContext &context, const QString &name);
QStringList testFormNames();
} // namespace drive
