#pragma once

#include "forms/form.h"

#include <memory>
#include <vector>

/// The dialogs about outside programs, made for one session.
std::vector<std::unique_ptr<Form>> extensionsForms(ProgramContext &context);
