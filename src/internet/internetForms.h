#pragma once

#include "forms/form.h"

#include <memory>
#include <vector>

/// The dialogs about pages on the Internet and in the browser, made for one session.
std::vector<std::unique_ptr<Form>> internetForms(ProgramContext &context);
