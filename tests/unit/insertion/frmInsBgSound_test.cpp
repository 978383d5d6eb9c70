#include "insertion/frmInsBgSound.h"

#include <gtest/gtest.h>

TEST(BackgroundSoundMarkup, IsTheElementWithItsPath)
{
    EXPECT_EQ(backgroundSoundMarkup(QStringLiteral("snd/a b.mid")), QStringLiteral("<bgsound src=\"snd/a b.mid\">"));
}
