#include "drive.h"

#include "forms/form.h"
#include "forms/label.h"
#include "forms/wholeframes.h"

#include <QPaintEvent>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Which part of the window was painted last.
class Painted final : public QObject {
public:
    explicit Painted(QWidget &window) { window.installEventFilter(this); }

    QRect last;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            last = static_cast<QPaintEvent *>(event)->rect();
        return false;
    }
};

class FramesOfAForm : public testing::Test {
protected:
    FramesOfAForm()
        : form(u"form"_s, 3000, 3000, forms::Form::Border::None)
        , label(&form)
    {
        label.SetPlace({ 300, 300, 900, 300 });
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
        QTest::qWait(50);
    }

    QRect paintedAfterTheLabelChanges()
    {
        const Painted painted(form);
        label.SetCaption(u"other"_s);
        QTest::qWait(50);
        return painted.last;
    }

    forms::Form form;
    forms::Label label;
};

} // namespace

TEST(WholeFrames, AreNeededAtAFractionOfAnEnlargement)
{
    for (const double factor : { 0.5, 0.625, 0.75, 1.25, 1.5 }) {
        EXPECT_TRUE(forms::needsWholeFrames(2 * factor, factor)) << factor;
        EXPECT_TRUE(forms::needsWholeFrames(3 * factor, factor)) << factor;
        EXPECT_FALSE(forms::needsWholeFrames(factor, factor)) << factor;
    }
    EXPECT_FALSE(forms::needsWholeFrames(2, 1));
    EXPECT_FALSE(forms::needsWholeFrames(4, 2));
    EXPECT_FALSE(forms::needsWholeFrames(2, 0)) << "none is set";
}

TEST_F(FramesOfAForm, AreThePartsThatChange)
{
    EXPECT_EQ(paintedAfterTheLabelChanges(), label.geometry());
    const forms::WholeFrames unneeded(1);
    EXPECT_TRUE(paintedAfterTheLabelChanges().isEmpty()) << "nothing changed";
}

TEST_F(FramesOfAForm, AreWholeWhereTheyAreNeeded)
{
    const forms::WholeFrames frames(0.5); // the test's windows have a ratio of 1
    EXPECT_EQ(paintedAfterTheLabelChanges(), form.rect());
}
