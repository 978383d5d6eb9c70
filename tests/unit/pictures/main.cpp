#include "pictures/pictureReader.h"
#include "runTests.h"

// The tests of pictures start this program once more, as every program does that loads pictures.
int main(int argc, char **argv)
{
    if (const std::optional<int> status = readPictureIfAsked(argc, argv))
        return *status;
    return runTests(argc, argv);
}
