// What the program says of itself, and its three links.

#include "opcionestest.h"

#include "tests/support/browser.h"

#include "forms/image.h"

#include <QAccessible>
#include <QFontInfo>

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;

namespace {

const QStringList Links { u"Link_Correo1"_s, u"Link_Web1"_s, u"Link_Redir"_s };

class AcercaDeTest : public OpcionesTest {
protected:
    AcercaDeTest() { start(); }

    void about(const std::function<void(forms::Form &)> &act) { open(u"Boton4b"_s, u"AcercaDe"_s, act); }
    static forms::Label &link(const forms::Form &form, const QString &name)
    {
        return controlOf<forms::Label>(form, name);
    }

    Browser browser;
};

} // namespace

TEST_F(AcercaDeTest, ItTellsNameVersionAndLicenceAndShowsTheLogo)
{
    about([this](forms::Form &form) {
        QStringList shown;
        for (const auto *label : form.findChildren<QLabel *>())
            shown << label->text();
        for (const QString &text : { u"Zembrolix"_s, u"V" ZEMBROLIX_VERSION ""_s, u"(FreeWare)"_s })
            EXPECT_THAT(shown, Contains(text));
        EXPECT_EQ(form.Caption(), u"S:TXT_AcercaDe"_s);
        EXPECT_EQ(captionOf(form, u"Label4"_s), u"S:Zem_Autores"_s);
        EXPECT_EQ(captionOf(form, u"TXT_Volver"_s), u"S:TXT_Volver"_s);
        auto &logo = controlOf<forms::Image>(form, u"Logotipo"_s);
        EXPECT_EQ(logo.accessibleName(), u"S:Zem_Logotipo"_s);
        EXPECT_GT(pictureOf(form).copy(logo.geometry()).pixelColor(48, 42).red(), 0);
        EXPECT_TRUE(form.Control(u"Shape1"_s));
        EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0, 0, 64));
        expectTiled(form);
        EXPECT_EQ(form.geometry().center(), portada->geometry().center());
        EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        EXPECT_FALSE(form.windowFlags().testAnyFlags(Qt::WindowMinMaxButtonsHint));
    });
}

TEST_F(AcercaDeTest, LinksAreBoldAndRedUnderAHand)
{
    about([](forms::Form &form) {
        for (const QString &name : Links) {
            const forms::Label &label = link(form, name);
            EXPECT_EQ(label.ForeColor(), QColor(255, 0, 0));
            EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
            EXPECT_TRUE(label.font().bold());
            EXPECT_EQ(label.font().pixelSize(), 11);
            EXPECT_EQ(QFontInfo(label.font()).family(), u"Liberation Sans"_s);
        }
        EXPECT_EQ(link(form, u"Link_Correo1"_s).accessibleName(), u"S:Zem_Correo zembrolix@example.org"_s);
        EXPECT_EQ(link(form, u"Link_Web1"_s).accessibleName(), u"S:Zem_Web www.example.org/zembrolix"_s);
        EXPECT_EQ(link(form, u"Link_Redir"_s).accessibleName(), u"S:Zem_Redir go.example.org/zembrolix"_s);
    });
}

TEST_F(AcercaDeTest, AnyButtonOpensALink_YellowWhilePressed)
{
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        browser.opened.clear();
        about([this, button](forms::Form &form) {
            for (const QString &name : Links) {
                forms::Label &label = link(form, name);
                const qsizetype before = browser.opened.size();
                press(label, button);
                EXPECT_EQ(label.ForeColor(), QColor(255, 255, 0));
                EXPECT_EQ(browser.opened.size(), before);
                releaseAt(label, QPoint(-20, 40), button);
                EXPECT_EQ(label.ForeColor(), QColor(255, 0, 0));
            }
            EXPECT_TRUE(form.isVisible());
        });
        EXPECT_THAT(browser.opened,
            ElementsAre(u"mailto:zembrolix@example.org"_s, u"https://www.example.org/zembrolix"_s,
                u"https://go.example.org/zembrolix"_s));
    }
}

TEST_F(AcercaDeTest, LinksOpenByTheKeyboardOnceTheUserIsThere)
{
    about([this](forms::Form &form) {
        strike(form, Qt::Key_Space);
        EXPECT_THAT(browser.opened, ElementsAre());
        strike(form, Qt::Key_Tab);
        strike(form, Qt::Key_Space);
        repeatKey(form, Qt::Key_Space);
        strike(form, Qt::Key_Tab);
        strike(form, Qt::Key_Return);
        strike(form, Qt::Key_Tab);
        strike(form, Qt::Key_Enter);
        EXPECT_THAT(browser.opened,
            ElementsAre(u"mailto:zembrolix@example.org"_s, u"https://www.example.org/zembrolix"_s,
                u"https://go.example.org/zembrolix"_s));
        strike(form, Qt::Key_Tab);
        EXPECT_EQ(form.focusWidget(), form.Control(u"Flecha2"_s));
        strike(form, Qt::Key_Space);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(AcercaDeTest, DotsOfTheFocusStandBesideTheLettersOfALink)
{
    about([](forms::Form &form) {
        for (const QString &name : Links) {
            forms::Label &label = link(form, name);
            form.setFocus();
            const QImage without = pictureOf(label);
            label.setFocus();
            const QImage with = pictureOf(label);
            int dots = 0;
            for (int y = 0; y < with.height(); ++y) {
                for (int x = 0; x < with.width(); ++x) {
                    if (with.pixel(x, y) == without.pixel(x, y))
                        continue;
                    ++dots;
                    EXPECT_LT(without.pixelColor(x, y).red(), 64) << x << ' ' << y;
                }
            }
            EXPECT_GT(dots, with.width() / 2);
        }
    });
}

TEST_F(AcercaDeTest, LinksAreToldAsLinks_AndOpenByTheirPressAction)
{
    about([this](forms::Form &form) {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&link(form, u"Link_Web1"_s));
        EXPECT_EQ(told->role(), QAccessible::Link);
        told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_THAT(browser.opened, ElementsAre(u"https://www.example.org/zembrolix"_s));
    });
}

TEST_F(AcercaDeTest, WhatItCoversOfTheMainScreenIsNotToldAsShowing)
{
    about([this](forms::Form &form) {
        int covered = 0;
        for (const auto *control : portada->findChildren<QWidget *>()) {
            if (!control->isVisible() || !dynamic_cast<const forms::Label *>(control))
                continue;
            const QRect place(control->mapToGlobal(QPoint(0, 0)), control->size());
            const bool under = form.frameGeometry().contains(place);
            covered += under;
            auto *told = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(control));
            EXPECT_EQ(told->state().offscreen, under) << control->objectName().toStdString();
        }
        EXPECT_GT(covered, 0);
        auto *own = QAccessible::queryAccessibleInterface(&link(form, u"Link_Web1"_s));
        EXPECT_FALSE(own->state().offscreen);
    });
}

TEST_F(AcercaDeTest, TheCloseBoxGoesBack_AndEscapeDoesNothing)
{
    about([](forms::Form &form) {
        strike(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        wishClose(form);
        EXPECT_FALSE(form.isVisible());
    });
}
