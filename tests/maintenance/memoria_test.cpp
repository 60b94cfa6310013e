// The steps, the browser and the message box, opened again and again: what one opening takes is free after
// it.

#include "configuraciontest.h"

#include "tests/support/memory.h"

using namespace Qt::StringLiterals;

namespace {

class MemoriaTest : public ConfiguracionTest {
protected:
    void openSecond(const std::function<void(forms::Form &)> &act)
    {
        configurePair(u"Alfa"_s, u"A2"_s, [act](forms::Form &form) {
            form.grab();
            act(form);
        });
    }
    void openBrowser(const QString &button)
    {
        openSecond([this, button](forms::Form &form) {
            atModal(u"Examinar"_s, [](forms::Form &browser) {
                browser.grab();
                click(controlOf<QWidget>(browser, u"Flecha2"_s));
            });
            click(controlOf<QWidget>(form, button));
        });
    }
};

} // namespace

TEST_F(MemoriaTest, TheFirstStepTakesNoMoreEachTime)
{
    begin();
    expectNoGrowth([this] { configure([](forms::Form &form) { form.grab(); }); });
}

TEST_F(MemoriaTest, TheSecondStepTakesNoMoreEachTime)
{
    begin();
    expectNoGrowth([this] { openSecond([](forms::Form &) {}); });
}

TEST_F(MemoriaTest, TheBrowserTakesNoMoreEachTime)
{
    begin();
    expectNoGrowth([this] { openBrowser(u"Boton1"_s); });
    expectNoGrowth([this] { openBrowser(u"Boton2"_s); });
}

TEST_F(MemoriaTest, TheMessageBoxTakesNoMoreEachTime)
{
    begin();
    for (const int type : { 1, 2, 3, 4 }) {
        expectNoGrowth([this, type] {
            atModal(u"Caja"_s, [type](forms::Form &box) {
                box.grab();
                click(controlOf<QWidget>(box, type == 3 ? u"Flecha2"_s : u"Aceptar2"_s));
            });
            portada->Mensaje(type, u"text"_s, u"title"_s, u"yes"_s, u"no"_s, u"offer"_s);
        });
    }
}
