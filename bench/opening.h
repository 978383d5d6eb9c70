#pragma once

class Form;

/// The processor time from the command that shows a form to its first painting, in seconds: the median of several.
double formOpeningTime(Form &form);
