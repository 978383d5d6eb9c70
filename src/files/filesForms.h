#pragma once

#include <memory>
#include <vector>

class Form;
struct ProgramContext;

/// The forms of opening, saving, printing and templates, for the application to own.
std::vector<std::unique_ptr<Form>> filesForms(ProgramContext &context);
