#pragma once

#include <memory>
#include <vector>

class Form;
struct ProgramContext;

/// The forms of the start, the options and the program's own affairs, for the application to own.
std::vector<std::unique_ptr<Form>> shellForms(ProgramContext &context);
