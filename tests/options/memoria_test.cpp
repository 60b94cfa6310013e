// The screens of the options, opened again and again: what one opening takes is free after it.

#include "opcionestest.h"

#include "tests/support/memory.h"

using namespace Qt::StringLiterals;

namespace {

using MemoriaDeOpcionesTest = OpcionesTest;

void lookAt(forms::Form &form)
{
    form.grab();
}

} // namespace

TEST_F(MemoriaDeOpcionesTest, TheOptionsTakeNoMoreEachTime)
{
    start();
    expectNoGrowth([this] { options(&lookAt); });
    expectNoGrowth([this] { advanced(&lookAt); });
}

TEST_F(MemoriaDeOpcionesTest, TheConversionAndTheCreditsTakeNoMoreEachTime)
{
    start();
    expectNoGrowth([this] { open(u"Boton3b"_s, u"Utilidades"_s, &lookAt); });
    expectNoGrowth([this] { open(u"Boton4b"_s, u"AcercaDe"_s, &lookAt); });
}
