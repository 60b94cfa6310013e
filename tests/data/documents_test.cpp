// The two documents of the program, shown by a text editor.
#include "sources.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class Document : public testing::TestWithParam<QString> { };

INSTANTIATE_TEST_SUITE_P(Delivered, Document, testing::Values(u"Zembro.txt"_s, u"Zembro.faq"_s),
    [](const auto &file) { return file.index == 0 ? "Manual" : "Questions"; });

TEST_P(Document, IsReadBackAsItWasAfterDelivery)
{
    EXPECT_TRUE(sources::survivesDelivery(sources::delivered(GetParam())));
}

TEST_P(Document, FitsAWindowOfEightyColumns)
{
    for (const QString &line : sources::lines(GetParam())) {
        EXPECT_LE(line.size(), 76) << line.toStdString();
        EXPECT_FALSE(line.endsWith(u' ') || line.contains(u'\t')) << line.toStdString();
    }
}

// Longer texts are cut in the program's own viewer.
TEST_P(Document, FitsTheViewerWhole)
{
    EXPECT_LE(sources::delivered(GetParam()).size(), 32000);
}
