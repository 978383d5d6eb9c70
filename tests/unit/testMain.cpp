#include "runTests.h"

// A test program with a main function of its own leaves this one in its library.
int main(int argc, char **argv)
{
    return runTests(argc, argv);
}
