#pragma once

/// What the main function of each test program does: runs the tests that the arguments ask for; its exit status.
int runTests(int argc, char **argv);
