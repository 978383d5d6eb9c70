#include "widgets/drawnControl.h"

DrawnControl::~DrawnControl() = default;
