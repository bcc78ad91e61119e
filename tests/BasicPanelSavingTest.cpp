// What the basic panel writes back, and what its actions do.
#include "Dialog.h"

using namespace support;

namespace {

class BasicPanel : public DialogTest
{
protected:
    void openOn(const QString &paper)
    {
        open(PPDText().allOptions(), paper);
        show("basic");
    }
};

TEST_F(BasicPanel, RollPaperMovesFormFeed2To1AndRemembersItOnlyWithTheNextPaper)
{
    openOn("A4");
    pick("mFormFeedModePopUp", 2); // on plain paper the memo becomes "NO"
    choosePaper("RollA4");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    EXPECT_EQ(memo(), "NO"); // the rule looks at the item as it was before the move
    choosePaper("RollLetter");
    EXPECT_EQ(memo(), "YES");
}

} // namespace
