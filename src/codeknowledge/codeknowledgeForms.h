#pragma once

#include "forms/form.h"

#include <memory>
#include <vector>

/// The windows of the user's code library, made for one session.
std::vector<std::unique_ptr<Form>> codeknowledgeForms(ProgramContext &context);
