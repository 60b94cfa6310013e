#include "disktest.h"

#include "host/failure.h"
#include "host/paths.h"
#include "host/renaming.h"

using namespace Qt::StringLiterals;
using namespace host;

using RenameDirectory = DiskTest;

TEST_F(RenameDirectory, KeepsWhatLiesInIt)
{
    makeDirectory("dir");
    makeFile("dir/file");
    renameDirectory(path(u"dir/"_s), u"bé c"_s);
    EXPECT_TRUE(exists("bé c/file"));
    EXPECT_FALSE(exists("dir"));
}

TEST_F(RenameDirectory, FailsWith5_ForANameThatIsTakenOrNone)
{
    makeDirectory("dir");
    makeDirectory("empty");
    makeFile("file");
    for (const QString &name : { u"empty"_s, u"file"_s, u""_s, u"a/b"_s, u"dir"_s })
        EXPECT_EQ(failureOf([&] { renameDirectory(path(u"dir"_s), name); }), InvalidArgument);
    EXPECT_TRUE(exists("dir"));
}

TEST_F(RenameDirectory, FailsWith76_IfThereIsNone)
{
    EXPECT_EQ(failureOf([&] { renameDirectory(path(u"gone"_s), u"name"_s); }), PathNotFound);
}
