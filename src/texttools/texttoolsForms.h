#pragma once

#include "forms/form.h"

#include <memory>
#include <vector>

/// The windows that read and change the text of a document, made for one session.
std::vector<std::unique_ptr<Form>> texttoolsForms(ProgramContext &context);
