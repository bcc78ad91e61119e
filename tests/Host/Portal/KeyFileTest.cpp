// Files of keys in groups that people write as well.
#include "Print.h"

#include "Portal/KeyFile.h"

#include <gtest/gtest.h>

using host::KeyFile;

namespace {

TEST(KeyFile, HasValuesByGroup)
{
    const KeyFile file("[a]\nk=1\n\n[b]\nk=2\n # k=3\nother = with spaces \n");
    EXPECT_EQ(file.value("a", "k"), "1");
    EXPECT_EQ(file.value("b", "k"), "2");
    EXPECT_EQ(file.value("b", "other"), "with spaces");
    EXPECT_EQ(file.value("c", "k"), std::nullopt);
    EXPECT_EQ(file.keys("b"), (QStringList{"k", "other"}));
}

TEST(KeyFile, TakesTheLastOfSeveral) { EXPECT_EQ(KeyFile("[a]\nk=1\nk=2\n[a]\nk=3\n").value("a", "k"), "3"); }

TEST(KeyFile, KnowsWhatABackslashStandsFor)
{
    EXPECT_EQ(KeyFile("[a]\nk=\\sx\\ny\\\\z\\").value("a", "k"), " x\ny\\z\\");
}

TEST(KeyFile, KeepsWhatSomebodyHasWritten)
{
    KeyFile file("# mine\n[a]\nk=1\nx=y\n\n[b]\nk=2\n");
    file.setValue("a", "k", "new");
    EXPECT_EQ(file.text(), "# mine\n[a]\nk=new\nx=y\n\n[b]\nk=2\n");
    file.remove("b", "k");
    EXPECT_EQ(file.text(), "# mine\n[a]\nk=new\nx=y\n\n[b]\n");
}

TEST(KeyFile, MakesTheGroupThatIsMissing)
{
    KeyFile file(QByteArray{});
    file.setValue("a", "k", "1");
    EXPECT_EQ(file.text(), "[a]\nk=1\n");
    file.setValue("b", "k", "2");
    EXPECT_EQ(file.text(), "[a]\nk=1\n[b]\nk=2\n");
}

TEST(KeyFile, ReadsAnything)
{
    for (const QByteArray &text :
         {QByteArray(), QByteArray("\0\xff[", 3), QByteArray("[a"), QByteArray("=x"), QByteArray("[]\n=\n")})
        EXPECT_EQ(KeyFile(text).value("a", "k"), std::nullopt);
}

} // namespace
