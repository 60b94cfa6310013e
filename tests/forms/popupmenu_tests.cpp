#include "drive.h"

#include "forms/form.h"
#include "forms/popupmenu.h"

#include "host/failure.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PopupMenus : public testing::Test {
protected:
    PopupMenus()
    {
        first = menu.AddEntry(u"Menu_ZoomX2"_s, u"Zoom x&2"_s);
        second = menu.AddEntry(u"Menu_OFF"_s, u"&OFF"_s);
        first->Click = [this] { log.push_back("first"); };
        second->Click = [this] { log.push_back("second"); };
    }

    // Pops the menu up, and works on it while it is open.
    void popup(const std::function<void(QMenu &)> &work)
    {
        QTimer::singleShot(0, [&] {
            auto *open = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            ASSERT_EQ(open, &menu);
            work(*open);
        });
        menu.Popup();
        log.push_back("closed");
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::PopupMenu menu { u"Menu_Graf_Imagen"_s, &form };
    forms::MenuEntry *first = nullptr;
    forms::MenuEntry *second = nullptr;
    drive::Log log;
};

TEST_F(PopupMenus, TheEntryChosen_HasRaisedItsClickWhenTheMenuReturns)
{
    drive::show(form);
    popup([this](QMenu &open) {
        drive::click(open, Qt::LeftButton, open.actionGeometry(second->action()).center());
    });
    EXPECT_THAT(log, ElementsAre("second", "closed"));
}

TEST_F(PopupMenus, TheAccelerator_ChoosesItsEntry)
{
    drive::show(form);
    popup([](QMenu &open) { drive::type(open, '2'); });
    EXPECT_THAT(log, ElementsAre("first", "closed"));
}

TEST_F(PopupMenus, Escape_ChoosesNothing)
{
    drive::show(form);
    popup([](QMenu &open) { drive::key(open, Qt::Key_Escape); });
    EXPECT_THAT(log, ElementsAre("closed"));
}

TEST_F(PopupMenus, TheMenuStandsAtThePointer)
{
    drive::show(form);
    QCursor::setPos(form.mapToGlobal(QPoint(50, 60)));
    QPoint at;
    popup([&](QMenu &open) {
        at = open.pos();
        open.close();
    });
    EXPECT_EQ(at, form.mapToGlobal(QPoint(50, 60)));
}

TEST_F(PopupMenus, Captions_AreReadAndSetWithTheirAccelerators)
{
    EXPECT_EQ(first->Caption(), u"Zoom x&2"_s);
    first->SetCaption(u"&Grande"_s);
    EXPECT_EQ(first->action()->text(), u"&Grande"_s);
    EXPECT_EQ(first->action()->objectName(), u"Menu_ZoomX2"_s);
    EXPECT_EQ(menu.objectName(), u"Menu_Graf_Imagen"_s);
}

TEST_F(PopupMenus, AFailureInAnEntrysHandler_EndsTheProcess)
{
    first->Click = [] { throw host::Failure(53, u"open"_s); };
    EXPECT_THROW(first->action()->trigger(), drive::ProcessEnd);
}

} // namespace
