// The surface: the floating tip, the menus, the web links.

#include "mundotest.h"

#include "tests/support/browser.h"
#include "tests/support/witness.h"

#include "forms/plaintext.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <cstddef>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QString Long = u"A very long name of a game that no list so narrow could ever show in full"_s;

class SuperficieTest : public MundoTest {
protected:
    forms::Image &tip() { return control<forms::Image>(u"IMGDescripcionLarga"_s); }
    // Rows 0 and 2 are too long for the list.
    void startWithLongNames()
    {
        startAt(Zeta, 0);
        list().Clear();
        for (const QString &text : { Long, u"short"_s, u"Another "_s + Long })
            list().AddItem(text);
        list().SetListIndex(1);
        // A pointer that stands where the last test left it doesn't move.
        moveTo(*portada, QPoint(2, 2));
    }
    QPoint pointOfRow(int row)
    {
        list().doItemsLayout();
        const QRect shown = list().visualRect(list().model()->index(row, 0));
        return list().viewport()->mapTo(&list(), QPoint(20, shown.center().y()));
    }
    // What the toolkit shows where the pointer rests on the list.
    QString tipOfTheList(int row)
    {
        const QPoint place = list().viewport()->mapFrom(&list(), pointOfRow(row));
        QHelpEvent ask(QEvent::ToolTip, place, list().viewport()->mapToGlobal(place));
        QApplication::sendEvent(list().viewport(), &ask);
        QString shown = QToolTip::text();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("QTipLabel"))
                delete window; // hidden, it would stay for a while
        }
        return shown;
    }
    void hover(int row) { moveTo(list(), pointOfRow(row)); }
    bool dark(const QImage &image, QRect where) const
    {
        for (int y = where.top(); y <= where.bottom(); ++y) {
            for (int x = where.left(); x <= where.right(); ++x) {
                if (image.pixelColor(x, y).lightness() < 100)
                    return true;
            }
        }
        return false;
    }
};

} // namespace

TEST_F(SuperficieTest, TipShowsALongEntryInFullOverItsRow)
{
    startWithLongNames();
    hover(0);
    ASSERT_TRUE(tip().isVisible());
    const QFontMetrics metrics = portada->fontMetrics();
    const int width = metrics.horizontalAdvance(Long) * 15;
    const int height = metrics.height() * 15;
    EXPECT_EQ(tip().geometry(), forms::inPixels({ 170, 1340, width + 50, height + 50 }));
    hover(2);
    EXPECT_EQ(tip().y(), forms::inPixels({ 0, 1340 + 2 * height, 0, 0 }).y());
    EXPECT_EQ(portada->childAt(tip().geometry().topLeft()), &tip());
}

TEST_F(SuperficieTest, TipThatTheWindowsEdgeCutsOffHasTheWholeEntryAsATipOfItsOwn)
{
    startWithLongNames();
    list().AddItem(Long + Long);
    hover(3);
    ASSERT_FALSE(portada->rect().contains(tip().geometry()));
    EXPECT_EQ(tip().toolTip(), forms::asTipOfLines(Long + Long));
    EXPECT_EQ(tipOfTheList(3), QString());
    hover(0);
    ASSERT_TRUE(portada->rect().contains(tip().geometry()));
    EXPECT_EQ(tip().toolTip(), QString());
}

TEST_F(SuperficieTest, TipIsBlackOnPaleYellow)
{
    startWithLongNames();
    hover(0);
    const QImage shown = tip().grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor(255, 255, 192));
    EXPECT_TRUE(dark(shown, QRect(0, 0, 40, shown.height() - 1)));
}

TEST_F(SuperficieTest, TipStandsByTheFirstRowInView)
{
    startAt(Zeta, 0);
    list().Clear();
    for (int i = 0; i < 60; ++i)
        list().AddItem(QString::number(i) + Long);
    list().SetListIndex(59);
    const int top = list().TopIndex();
    ASSERT_GT(top, 10);
    hover(top + 1);
    EXPECT_EQ(tip().y(), forms::inPixels({ 0, 1340 + portada->fontMetrics().height() * 15, 0, 0 }).y());
}

TEST_F(SuperficieTest, WheelOverTheTipHidesItAndTurnsTheList)
{
    startAt(Zeta, 0);
    list().Clear();
    for (int i = 0; i < 60; ++i)
        list().AddItem(QString::number(i) + Long);
    moveTo(*portada, QPoint(2, 2));
    hover(2);
    ASSERT_TRUE(tip().isVisible());
    ASSERT_EQ(list().TopIndex(), 0);
    turnWheel(tip(), QPoint(8, 5));
    EXPECT_FALSE(tip().isVisible());
    EXPECT_GT(list().TopIndex(), 0);
}

TEST_F(SuperficieTest, EntryThatFitsHidesTheTipOfTheOneBefore)
{
    startWithLongNames();
    hover(0);
    ASSERT_TRUE(tip().isVisible());
    hover(1);
    EXPECT_FALSE(tip().isVisible());
}

// A bar at the side takes room from the letters, and so does the margin ahead of them.
TEST_F(SuperficieTest, EntryHasATipAsSoonAsALetterOfItCanNotBeSeen)
{
    startAt(Zeta, 0);
    const QFontMetrics metrics = portada->fontMetrics();
    for (const bool withBar : { false, true }) {
        list().Clear();
        for (int i = 0; i < (withBar ? 40 : 2); ++i)
            list().AddItem(u"short"_s);
        list().doItemsLayout();
        const int room = list().viewport()->width() - 3;
        EXPECT_EQ(room < list().width() - 12, withBar);
        QString fits;
        while (metrics.horizontalAdvance(fits + u'i') <= room)
            fits += u'i';
        list().Clear();
        list().AddItems({ fits, fits + u'i' });
        for (int i = 2; i < (withBar ? 40 : 2); ++i)
            list().AddItem(u"short"_s);
        list().doItemsLayout();
        moveTo(*portada, QPoint(2, 2));
        hover(0);
        EXPECT_FALSE(tip().isVisible()) << withBar;
        hover(1);
        EXPECT_TRUE(tip().isVisible()) << withBar;
    }
}

TEST_F(SuperficieTest, PointBelowTheLastEntryHidesTheTip)
{
    startWithLongNames();
    hover(2);
    ASSERT_TRUE(tip().isVisible());
    moveTo(list(), QPoint(20, list().height() - 10));
    EXPECT_FALSE(tip().isVisible());
}

TEST_F(SuperficieTest, TipNeitherMovesNorHidesWhileAButtonIsHeld)
{
    startWithLongNames();
    hover(0);
    const QRect place = tip().geometry();
    for (const int row : { 2, 1 }) {
        list().MouseMove.raise({ forms::MiddleButton, 20 * 15, forms::twips(pointOfRow(row).y()) });
        EXPECT_EQ(tip().geometry(), place);
        EXPECT_TRUE(tip().isVisible());
    }
}

TEST_F(SuperficieTest, TipStaysWhileThePointerRestsOnIt)
{
    startWithLongNames();
    hover(0);
    moveTo(tip(), QPoint(5, 5));
    EXPECT_TRUE(tip().isVisible());
    moveTo(*portada, QPoint(3, 300));
    EXPECT_FALSE(tip().isVisible());
}

TEST_F(SuperficieTest, TipYieldsOnceAndLeavesTheScreenToALaterMove)
{
    startWithLongNames();
    bool later = false;
    QTimer::singleShot(0, portada.get(), [&] {
        later = true;
        list().MouseMove.raise({ 0, 20 * 15, forms::twips(pointOfRow(1).y()) });
    });
    list().MouseMove.raise({ 0, 20 * 15, 5 * 15 });
    EXPECT_TRUE(later);
    EXPECT_FALSE(tip().isVisible());
}

TEST_F(SuperficieTest, MoveHandledInTheYieldOfAnotherYieldsNoMore)
{
    startWithLongNames();
    bool drawn = false;
    bool yieldedWithin = false;
    QTimer::singleShot(0, portada.get(), [&] {
        QMetaObject::invokeMethod(
            portada.get(), [&] { yieldedWithin = !drawn; }, Qt::QueuedConnection);
        list().MouseMove.raise({ 0, 20 * 15, forms::twips(pointOfRow(2).y()) });
        drawn = true;
    });
    list().MouseMove.raise({ 0, 20 * 15, 5 * 15 });
    EXPECT_TRUE(drawn);
    EXPECT_FALSE(yieldedWithin);
    EXPECT_TRUE(tip().isVisible());
    EXPECT_EQ(tip().y(), forms::inPixels({ 0, 1340 + 2 * portada->fontMetrics().height() * 15, 0, 0 }).y());
    EXPECT_TRUE(dark(tip().grab().toImage(), QRect(0, 0, 40, tip().height() - 1)));
}

TEST_F(SuperficieTest, TipIsWrittenWhileAMenuIsOpenThatOpenedInItsYield)
{
    startWithLongNames();
    list().MouseMove.raise({ 0, 20 * 15, 5 * 15 });
    const QImage once = tip().grab().toImage();
    bool written = false;
    QTimer::singleShot(0, portada.get(), [&] {
        QTimer::singleShot(1000, portada->Menu_Lista1, &QWidget::close);
        QTimer watch;
        watch.callOnTimeout([&] {
            written = dark(tip().grab().toImage(), QRect(0, 0, 40, tip().height() - 1));
            if (written)
                portada->Menu_Lista1->close();
        });
        watch.start(10);
        portada->Menu_Lista1->Popup();
    });
    list().MouseMove.raise({ 0, 20 * 15, 5 * 15 });
    EXPECT_TRUE(written);
    EXPECT_EQ(tip().grab().toImage(), once);
}

TEST_F(SuperficieTest, FloodOfMovesDoesNotPileUp)
{
    constexpr int Moves = 30'000;
    constexpr std::ptrdiff_t Deepest = 1 << 20; // bytes of the stack
    startWithLongNames();
    const char here = 0;
    std::ptrdiff_t deepest = 0;
    int seen = 0;
    const Witness witness(*list().viewport(), QEvent::MouseMove, [&] {
        const char there = 0;
        deepest = std::max(deepest, &here - &there);
        ++seen;
        if (deepest > Deepest) // before it ends the process
            QCoreApplication::removePostedEvents(portada->windowHandle(), QEvent::MouseMove);
    });
    const auto place = [this](
                           int row) { return list().mapTo(portada.get(), pointOfRow(row)) + QPoint(row, 0); };
    const QPointF first = place(0);
    const QPointF second = place(2);
    for (int i = 0; i < Moves; ++i) {
        const QPointF &point = i % 2 == 0 ? first : second;
        QCoreApplication::postEvent(portada->windowHandle(),
            new QMouseEvent(QEvent::MouseMove, point, portada->mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                Qt::NoModifier));
    }
    bool done = false;
    QMetaObject::invokeMethod(
        portada.get(), [&] { done = true; }, Qt::QueuedConnection);
    ASSERT_TRUE(QTest::qWaitFor([&] { return done; }, 60'000));
    EXPECT_GE(seen, Moves / 3); // the others find the tip on their way
    EXPECT_LT(deepest, Deepest);
    EXPECT_TRUE(tip().isVisible());
}

TEST_F(SuperficieTest, ClickOnTheTipSelectsItsEntryAndFocusesTheList)
{
    startWithLongNames();
    hover(2);
    control(u"Combo1"_s).setFocus();
    click(tip());
    EXPECT_EQ(list().ListIndex(), 2);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(SuperficieTest, ClickOnATipWhoseEntryIsGoneSelectsNothing)
{
    startWithLongNames();
    hover(2);
    list().Clear();
    click(tip());
    EXPECT_EQ(list().ListIndex(), -1);
}

TEST_F(SuperficieTest, RightButtonOpensTheListsMenuAndSelectsNothing)
{
    startAt(Zeta, 0);
    clickRow(list(), 0);
    EXPECT_TRUE(popsUp(*portada->Menu_Lista1, [&] { clickRow(list(), 1, Qt::RightButton); }));
    EXPECT_EQ(list().ListIndex(), 0);
}

TEST_F(SuperficieTest, RightButtonOnAListWithoutSelectionOpensNoMenuButOnATipItDoes)
{
    startWithLongNames();
    list().SetListIndex(-1);
    EXPECT_FALSE(popsUp(*portada->Menu_Lista1, [&] { clickAt(list(), QPoint(20, 150), Qt::RightButton); }));
    hover(0);
    EXPECT_TRUE(popsUp(*portada->Menu_Lista1, [&] { clickAt(tip(), QPoint(8, 5), Qt::RightButton); }));
}

TEST_F(SuperficieTest, MenuOpenedOverAnotherEntryActsOnTheSelection)
{
    startAt(Zeta, 0);
    clickRow(list(), 0);
    questions.yesNo = { false };
    EXPECT_TRUE(popsUp(
        *portada->Menu_Lista1, [&] { clickRow(list(), 1, Qt::RightButton); },
        portada->Menu_Borrar->action()));
    EXPECT_THAT(questions.asked, ElementsAre(u"Papelera"_s, u"¿Mover a la papelera?\n\none.nes"_s));
}

TEST_F(SuperficieTest, RightButtonOnWhatStandsInTheSetOpensNoMenu)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    for (const QString &name : { u"WEB1"_s, u"TXT_Info"_s, u"Boton"_s, u"X5"_s })
        EXPECT_FALSE(popsUp(*portada->Menu_Graf_Imagen, [&] { click(control(name), Qt::RightButton); }))
            << name.toStdString();
}

TEST_F(SuperficieTest, WebLinkYieldsOnceAheadOfOpening)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    bool yielded = false;
    press(control(u"WEB1"_s));
    QTimer::singleShot(0, portada.get(), [&] {
        yielded = true;
        EXPECT_TRUE(browser.opened.isEmpty());
    });
    release(control(u"WEB1"_s));
    EXPECT_TRUE(yielded);
    EXPECT_EQ(browser.opened.size(), 1);
}

TEST_F(SuperficieTest, RightButtonOnTheTelevisionOpensTheCapturesMenu)
{
    startAt(Zeta, 0);
    QWidget &set = control(u"Graf_TV"_s);
    EXPECT_TRUE(popsUp(*portada->Menu_Graf_Imagen, [&] { clickAt(set, QPoint(6, 60), Qt::RightButton); }));
    EXPECT_FALSE(popsUp(*portada->Menu_Graf_Imagen, [&] { clickAt(set, QPoint(6, 60)); }));
}

TEST_F(SuperficieTest, MenusHaveTheirEntriesWithAccelerators)
{
    startAt(Zeta, 0);
    const auto captions = [](const QMenu &menu) {
        QStringList texts;
        for (const QAction *action : menu.actions())
            texts << action->text();
        return texts;
    };
    EXPECT_THAT(captions(*portada->Menu_Graf_Imagen),
        ElementsAre(u"Zoom x&2"_s, u"Zoom x&3"_s, u"Zoom x&4"_s, u"Zoom x&5"_s, u"&OFF"_s));
    EXPECT_THAT(captions(*portada->Menu_Lista1),
        ElementsAre(u"Poner una &descripción"_s, u"&Borrar la ROM"_s, u"&Añadir parámetros específicos"_s));
}

TEST_F(SuperficieTest, WebLinksTurnYellowWhilePressedAndOpenThePage)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=www.example.org/zeta"_s;
    M->Cat_WEB2(0, 1) = u"WEB2=https://example.org/uno"_s;
    for (const QString &name : { u"WEB1"_s, u"WEB2"_s }) {
        EXPECT_EQ(colour(name), QColor(255, 0, 0));
        press(control(name), Qt::MiddleButton);
        EXPECT_EQ(colour(name), QColor(255, 255, 0));
        releaseAt(control(name), QPoint(-30, 4), Qt::MiddleButton);
        EXPECT_EQ(colour(name), QColor(255, 0, 0));
    }
    EXPECT_THAT(browser.opened, ElementsAre(u"http://www.example.org/zeta"_s, u"https://example.org/uno"_s));
}

TEST_F(SuperficieTest, MissingPagesAreTold)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Msg_SisNoWeb0 = u"Sistema"_s;
    M->Msg_SisNoWeb1 = u"no tiene"_s;
    M->Msg_EmuNoWeb0 = u"Emulador"_s;
    M->Msg_EmuNoWeb1 = u"tampoco"_s;
    M->Cat_WEB1(0) = u"WEB1="_s;
    M->Cat_WEB2(0, 1) = u"WEB2="_s;
    QStringList told;
    for (const QString &name : { u"WEB1"_s, u"WEB2"_s }) {
        atModal(u"Caja"_s, [&](forms::Form &form) {
            told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
            EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Aceptar"_s).Caption(), u"Aceptar"_s);
            click(controlOf<QWidget>(form, u"Aceptar2"_s));
        });
        click(control(name));
    }
    EXPECT_THAT(told, ElementsAre(u"Sistema"_s, u"no tiene"_s, u"Emulador"_s, u"tampoco"_s));
    EXPECT_THAT(browser.opened, ElementsAre());
}

TEST_F(SuperficieTest, WebLinksDoNothingWithoutASelection)
{
    const Browser browser;
    startWithoutEmulator(Alfa);
    click(control(u"WEB2"_s));
    systems().SetListIndex(-1);
    click(control(u"WEB1"_s));
    EXPECT_EQ(colour(u"WEB1"_s), QColor(255, 0, 0));
    EXPECT_THAT(browser.opened, ElementsAre());
}

TEST_F(SuperficieTest, BoxOrMenuUnderAHeldLinkTurnsItRedAndOpensNothing)
{
    const Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    M->Cat_WEB2(0, 1) = u"WEB2=http://b.example/"_s;
    for (const QString &name : { u"WEB1"_s, u"WEB2"_s }) {
        QWidget &link = control(name);
        press(link);
        EXPECT_EQ(colour(name), QColor(255, 255, 0));
        atModal(u"Caja"_s, [&](forms::Form &form) {
            EXPECT_EQ(colour(name), QColor(255, 0, 0));
            click(controlOf<QWidget>(form, u"Aceptar2"_s));
        });
        portada->Mensaje(4, u"text"_s, u"title"_s, u"a"_s, u"b"_s, {});
        release(link);
        EXPECT_EQ(colour(name), QColor(255, 0, 0));

        press(link);
        EXPECT_TRUE(popsUp(*portada->Menu_Lista1, [&] { list().MenuKey.raise(); }));
        EXPECT_EQ(colour(name), QColor(255, 0, 0));
        release(link);
    }
    EXPECT_THAT(browser.opened, ElementsAre());
}

TEST_F(SuperficieTest, BoxUnderAHeldPictureLeavesItAtRest)
{
    startAt(Zeta, 0);
    auto &play = control<forms::PictureButton>(u"JugarB1"_s);
    int released = 0;
    play.Release = [&] { ++released; };
    press(play);
    EXPECT_TRUE(play.ShowsPressed());
    atModal(u"Caja"_s, [&](forms::Form &form) {
        EXPECT_FALSE(play.ShowsPressed());
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    portada->Mensaje(4, u"text"_s, u"title"_s, u"a"_s, u"b"_s, {});
    release(play);
    EXPECT_EQ(released, 0);
}

TEST_F(SuperficieTest, LineOfACatalogueShorterThanItsPrefixIsFatal)
{
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB"_s;
    EXPECT_TRUE(endOf([&] { click(control(u"WEB1"_s)); }));
}

TEST_F(SuperficieTest, HandPointsAtTitleAndLinks)
{
    startAt(Zeta, 0);
    for (const QString &name : { u"Titulo1"_s, u"WEB1"_s, u"WEB2"_s })
        EXPECT_EQ(control(name).cursor().shape(), Qt::PointingHandCursor);
}
