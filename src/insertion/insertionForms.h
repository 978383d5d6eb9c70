#pragma once

#include "forms/form.h"

#include <memory>
#include <vector>

/// The dialogs that write markup into the active document, made for one session.
std::vector<std::unique_ptr<Form>> insertionForms(ProgramContext &context);
