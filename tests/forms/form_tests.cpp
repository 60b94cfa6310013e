#include "drive.h"

#include "forms/control.h"
#include "forms/form.h"
#include "forms/picturebutton.h"

#include "host/failure.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using forms::Form;
using testing::ElementsAre;

namespace {

// The window manager's wish.
bool wishClosed(QWidget &window)
{
    QCloseEvent wish;
    QApplication::sendEvent(&window, &wish);
    return wish.isAccepted();
}

class Forms : public testing::Test {
protected:
    // Runs once the event loop of a modal form turns.
    template <class Work> static void meanwhile(Work work) { QTimer::singleShot(0, qApp, work); }

    Form owner { u"Owner"_s, 6165, 5715, Form::Border::None };
};

TEST_F(Forms, TheClientSize_IsThatOfTheDesign)
{
    EXPECT_EQ(owner.size(), QSize(411, 381));
    EXPECT_EQ(owner.minimumSize(), owner.maximumSize());
    EXPECT_EQ(owner.objectName(), u"Owner"_s);
    owner.SetClientSize(1500, 3000);
    EXPECT_EQ(owner.size(), QSize(100, 200));
}

TEST_F(Forms, OuterMeasures_CountTheFrame)
{
    owner.SetOuterHeight(1730);
    EXPECT_EQ(owner.height(), 90);
    owner.SetOuterWidth(2160);
    EXPECT_EQ(owner.width(), 138);
    EXPECT_EQ(owner.minimumSize(), owner.maximumSize());
}

TEST_F(Forms, WithoutABorder_ThereIsNoFrame)
{
    EXPECT_TRUE(owner.windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(Forms, WithABorder_ThereIsATitleWithoutButtons)
{
    Form form(u"Caja"_s, 2505, 1650, Form::Border::FixedSingle);
    form.ShowModeless(&owner);
    const Qt::WindowFlags flags = form.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint));
    EXPECT_FALSE(flags.testFlag(Qt::FramelessWindowHint));
    EXPECT_FALSE(flags.testAnyFlags(
        Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint));
}

TEST_F(Forms, WithACloseBox_ItIsTheOnlyButtonOfTheTitle)
{
    Form form(u"Opciones1"_s, 2655, 4620, Form::Border::FixedWithCloseBox);
    form.ShowModeless(&owner);
    const Qt::WindowFlags flags = form.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowSystemMenuHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testAnyFlags(Qt::WindowMinMaxButtonsHint | Qt::FramelessWindowHint));
    EXPECT_EQ(form.minimumSize(), form.maximumSize());
    EXPECT_TRUE(form.close());
}

TEST_F(Forms, ShowModal_ReturnsWhenTheFormIsUnloaded)
{
    Form form(u"Caja"_s, 2505, 1650, Form::Border::FixedSingle);
    drive::Log log;
    meanwhile([&] {
        log.push_back(form.isVisible() && QApplication::activeModalWidget() == &form ? "modal" : "not modal");
        form.Unload();
        log.push_back("unloaded");
    });
    form.ShowModal(nullptr);
    log.push_back("returned");
    EXPECT_THAT(log, ElementsAre("modal", "unloaded", "returned"));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Forms, AModalForm_StandsInTheMiddleOfItsOwner)
{
    drive::show(owner);
    owner.move(150, 120);
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    QRect place;
    meanwhile([&] {
        place = form.geometry();
        form.Unload();
    });
    form.ShowModal(&owner);
    EXPECT_EQ(place.center(), owner.geometry().center());
}

TEST_F(Forms, AModalFormWithoutAnOwner_StandsInTheMiddleOfTheScreen)
{
    drive::show(owner);
    owner.move(10, 10);
    Form form(u"Opciones1"_s, 1500, 1500, Form::Border::FixedSingle);
    QRect place;
    meanwhile([&] {
        place = form.geometry();
        form.Unload();
    });
    form.ShowModal(nullptr);
    EXPECT_EQ(place.center(), QApplication::primaryScreen()->availableGeometry().center());
}

TEST_F(Forms, OverAnOwnerAtTheScreensEdge_TheFormStaysOnTheScreen)
{
    drive::show(owner);
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    owner.move(screen.right() - 50, screen.bottom() - 50);
    Form form(u"Caja"_s, 3000, 3000, Form::Border::None);
    form.ShowModeless(&owner);
    EXPECT_TRUE(screen.contains(form.geometry()));
    EXPECT_EQ(form.geometry().bottomRight(), screen.bottomRight());
}

TEST_F(Forms, TheStackingParent_IsTheActiveModalFormNotTheOwner)
{
    drive::show(owner);
    Form outer(u"Configuracion1"_s, 3000, 3000, Form::Border::FixedSingle);
    Form inner(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    const QWindow *overOuter = nullptr;
    const QWindow *overInner = nullptr;
    QPoint middle;
    meanwhile([&] {
        owner.move(200, 100);
        overOuter = outer.windowHandle()->transientParent();
        meanwhile([&] {
            overInner = inner.windowHandle()->transientParent();
            middle = inner.geometry().center();
            inner.Unload();
        });
        inner.ShowModal(&owner);
        outer.Unload();
    });
    outer.ShowModal(&owner);
    EXPECT_EQ(overOuter, owner.windowHandle());
    EXPECT_EQ(overInner, outer.windowHandle());
    EXPECT_EQ(middle, owner.geometry().center());
}

TEST_F(Forms, WhileAFormIsModal_TheOthersGetNoInput)
{
    forms::PictureButton pair(u"Rest2"_s, u"Rest1"_s, &owner);
    pair.SetPlace({ 0, 0, 600, 600 });
    int presses = 0;
    pair.Press = [&] { ++presses; };
    drive::show(owner);
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    meanwhile([&] {
        drive::click(pair);
        form.Unload();
    });
    form.ShowModal(&owner);
    EXPECT_EQ(presses, 0);
    drive::click(pair);
    EXPECT_EQ(presses, 1);
}

TEST_F(Forms, AfterAModalForm_TheControlBelowHasTheFocusAgain)
{
    QWidget first(&owner);
    QWidget second(&owner);
    drive::show(owner);
    first.setFocus();
    second.setFocus();
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    QWidget box(&form);
    bool boxHadIt = false;
    meanwhile([&] {
        box.setFocus();
        boxHadIt = QTest::qWaitFor([&] { return box.hasFocus(); });
        form.Unload();
    });
    form.ShowModal(&owner);
    EXPECT_TRUE(boxHadIt);
    EXPECT_TRUE(QTest::qWaitFor([&] { return second.hasFocus(); }));
}

TEST_F(Forms, AFormUnloadedWhileItShows_DoesNotKeepShowModalWaiting)
{
    class Hasty : public Form {
    public:
        using Form::Form;

    protected:
        void showEvent(QShowEvent *) override { Unload(); }
    };
    Hasty form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    form.ShowModal(nullptr);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Forms, AFormDestroyedWhileModal_EndsShowModal)
{
    auto *form = new Form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    meanwhile([=] { delete form; });
    form->ShowModal(nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Forms, AModalForm_CanBeShownAgain)
{
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    int shows = 0;
    for (int i = 0; i < 2; ++i) {
        meanwhile([&] {
            ++shows;
            form.Unload();
        });
        form.ShowModal(nullptr);
    }
    EXPECT_EQ(shows, 2);
}

TEST_F(Forms, AFormClosedAndShownAgainByItsOwnHandler_KeepsTheFirstCallWaiting)
{
    Form form(u"Utilidades"_s, 1500, 1500, Form::Border::FixedWithCloseBox);
    std::vector<std::string> log;
    meanwhile([&] {
        form.close();
        form.ShowModal(&owner);
        log.push_back(form.isVisible() && QApplication::activeModalWidget() == &form ? "modal" : "not modal");
        QTimer::singleShot(0, qApp, [&] {
            log.push_back("closed");
            form.close();
        });
    });
    form.ShowModal(&owner);
    log.push_back("returned");
    EXPECT_THAT(log, ElementsAre("modal", "closed", "returned"));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Forms, AFatalEndInsideAModalForm_LeavesNoModalFormBehind)
{
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    form.KeyEnter = [] { throw host::Failure(53, u"open"_s); };
    meanwhile([&] { drive::key(form, Qt::Key_Return); });
    EXPECT_THROW(form.ShowModal(nullptr), drive::ProcessEnd);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Forms, ShowModeless_ReturnsAtOnceAndBlocksNothing)
{
    drive::show(owner);
    Form form(u"Aumento"_s, 1500, 1500, Form::Border::None);
    form.ShowModeless(&owner);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(form.windowHandle()->transientParent(), owner.windowHandle());
    EXPECT_EQ(form.geometry().center(), owner.geometry().center());
}

TEST_F(Forms, TheWishToClose_GoesToItsHandlerAndClosesNothing)
{
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    int wishes = 0;
    form.CloseWished = [&] { ++wishes; };
    form.ShowModeless(nullptr);
    EXPECT_FALSE(wishClosed(form));
    EXPECT_EQ(wishes, 1);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Forms, TheWishToCloseAFormWithoutATitle_IsIgnored)
{
    drive::show(owner);
    EXPECT_FALSE(wishClosed(owner));
    owner.close();
    EXPECT_TRUE(owner.isVisible());
}

TEST_F(Forms, TheWishToCloseAFormWithATitle_EndsItsModalDisplay)
{
    Form form(u"Opciones1"_s, 1500, 1500, Form::Border::FixedSingle);
    meanwhile([&] { form.close(); });
    form.ShowModal(nullptr);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Forms, Escape_ClosesNothing)
{
    Form form(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    drive::show(form);
    drive::key(form, Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Forms, EnterOnTheForm_RaisesKeyEnterOnceWhileHeld)
{
    int enters = 0;
    owner.KeyEnter = [&] { ++enters; };
    drive::show(owner);
    drive::key(owner, Qt::Key_Enter);
    drive::repeatedKey(owner, Qt::Key_Enter);
    EXPECT_EQ(enters, 1);
}

TEST_F(Forms, MovesOverItsOwnSurface_AreRaised)
{
    std::vector<int> points;
    drive::show(owner);
    drive::moveTo(owner, { 20, 20 });
    owner.MouseMove = [&](const forms::Mouse &mouse) { points.push_back(mouse.x); };
    drive::moveTo(owner, { 300, 300 });
    EXPECT_THAT(points, ElementsAre(4500));
}

TEST_F(Forms, TheTile_CoversTheWholeClientArea)
{
    QPixmap tile(4, 4);
    tile.fill(Qt::red);
    {
        QPainter painter(&tile);
        painter.fillRect(0, 0, 2, 4, Qt::blue);
    }
    Form form(u"Caja"_s, 750, 600, Form::Border::None);
    form.SetTile(tile, 300, 300);
    drive::show(form);
    for (const int y : { 0, 39 }) {
        EXPECT_EQ(drive::colourAt(form, { 2, y }), QColor(Qt::blue));
        EXPECT_EQ(drive::colourAt(form, { 17, y }), QColor(Qt::red));
        EXPECT_EQ(drive::colourAt(form, { 22, y }), QColor(Qt::blue));
        EXPECT_EQ(drive::colourAt(form, { 37, y }), QColor(Qt::red));
        EXPECT_EQ(drive::colourAt(form, { 42, y }), QColor(Qt::blue));
    }
}

TEST_F(Forms, TheBackground_IsDrawnOverTheClientArea)
{
    owner.SetBackground(u"Rest2"_s);
    drive::show(owner);
    EXPECT_EQ(drive::colourAt(owner, { 0, 0 }), QColor(Qt::red));
    EXPECT_EQ(drive::colourAt(owner, { 410, 380 }), QColor(Qt::white));
}

TEST_F(Forms, TheBackColour_FillsTheForm)
{
    owner.SetBackColour(QColor(0, 0, 64));
    drive::show(owner);
    EXPECT_EQ(drive::colourAt(owner, { 100, 100 }), QColor(0, 0, 64));
}

TEST_F(Forms, Controls_AreFoundByName)
{
    QWidget outer(&owner);
    QWidget inner(&outer);
    inner.setObjectName(u"TXT_Añadir"_s);
    EXPECT_EQ(owner.Control(u"TXT_Añadir"_s), &inner);
    EXPECT_EQ(owner.Control(u"TXT_Anadir"_s), nullptr);
}

TEST(FormTitles, OneWithoutEndGoesToTheWindowManagerAsItsBeginning)
{
    Form form(u"Form"_s, 1500, 1500, Form::Border::FixedSingle);
    const QString endless = u'x' + u"😀"_s.repeated(500'000);
    form.SetCaption(endless);
    EXPECT_TRUE(form.Caption() == endless);
    EXPECT_EQ(form.windowTitle(), endless.first(511) + u'…');
    form.SetCaption(endless.sliced(1));
    EXPECT_EQ(form.windowTitle(), endless.sliced(1, 512) + u'…');
    form.SetCaption(endless.first(511));
    EXPECT_EQ(form.windowTitle(), endless.first(511));
}

class Holders : public testing::Test {
protected:
    int made = 0;
    forms::FormHolder<Form> holder { [this] {
        ++made;
        return std::make_unique<Form>(u"Caja"_s, 1500, 1500, Form::Border::FixedSingle);
    } };
};

TEST_F(Holders, AForm_IsMadeAtFirstTouch)
{
    EXPECT_FALSE(holder.isLoaded());
    EXPECT_EQ(made, 0);
    holder->SetCaption(u"x"_s);
    EXPECT_TRUE(holder.isLoaded());
    EXPECT_EQ(holder->Caption(), u"x"_s);
    EXPECT_EQ(made, 1);
}

TEST_F(Holders, AFormShownModally_IsDestroyedWhenItHasClosed)
{
    holder->SetCaption(u"x"_s);
    QTimer::singleShot(0, qApp, [this] { holder->Unload(); });
    holder.ShowModal(nullptr);
    EXPECT_FALSE(holder.isLoaded());
    EXPECT_EQ(holder->Caption(), QString());
    EXPECT_EQ(made, 2);
}

TEST_F(Holders, UnloadingTheHolder_EndsTheModalDisplay)
{
    QTimer::singleShot(0, qApp, [this] { holder.Unload(); });
    holder.ShowModal(nullptr);
    EXPECT_FALSE(holder.isLoaded());
}

TEST_F(Holders, AFormClosedWhileItsHandlerWorks_IsDestroyedBehindTheHandlerAlone)
{
    bool thereAllTheTime = false;
    QTimer::singleShot(0, qApp, [&] {
        const QPointer<Form> form(&*holder);
        form->close();
        QCoreApplication::processEvents();
        holder.ShowModal(nullptr);
        const bool shownAgain = form && form->isVisible();
        form->close();
        QCoreApplication::processEvents();
        thereAllTheTime = shownAgain && form;
    });
    holder.ShowModal(nullptr);
    EXPECT_TRUE(thereAllTheTime);
    EXPECT_FALSE(holder.isLoaded());
    EXPECT_EQ(made, 1);
}

TEST_F(Holders, AFatalEndInsideTheForm_DestroysIt)
{
    QTimer::singleShot(0, qApp, [this] { drive::key(*holder, Qt::Key_Return); });
    holder->KeyEnter = [] { throw host::Failure(53, u"open"_s); };
    EXPECT_THROW(holder.ShowModal(nullptr), drive::ProcessEnd);
    EXPECT_FALSE(holder.isLoaded());
}

} // namespace
