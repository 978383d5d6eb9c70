#pragma once

/// Gives the message queue one turn: what waits there (painting, input, timers) runs now.
void DoEvents();
