#include "insertion/insertionForms.h"

std::vector<std::unique_ptr<Form>> insertionForms(ProgramContext &)
{
    return {};
}
