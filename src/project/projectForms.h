#pragma once

#include "forms/form.h"

#include <memory>
#include <vector>

class ProjectFileCtrl;

/// The forms of the site projects, made for one session.
std::vector<std::unique_ptr<Form>> projectForms(ProgramContext &context, ProjectFileCtrl &project);
