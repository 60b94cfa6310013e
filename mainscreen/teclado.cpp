// The main screen without a mouse: the way of Tab, the accelerators, the menu key. None of them is a key that
// the screen listens for by itself (Enter, Insert, Delete, letters in the list).

#include "mainscreen/portada.h"

#include <QShortcut>

#include <array>

namespace mainscreen {

namespace {

struct Acelerador {
    forms::PictureButton *Portada::*boton;
    QKeyCombination tecla;
    bool tapado = false; // lies under an open text
};

const Acelerador Aceleradores[] = {
    { &Portada::Boton5b, Qt::Key_F1 },
    { &Portada::Boton6b, Qt::SHIFT | Qt::Key_F1 },
    { &Portada::BotonC2, Qt::Key_F2 },
    { &Portada::BotonD2, Qt::Key_F3 },
    { &Portada::Boton1b, Qt::Key_F5, true },
    { &Portada::Boton2b, Qt::Key_F6, true },
    { &Portada::Boton3b, Qt::Key_F7 },
    { &Portada::Boton4b, Qt::Key_F8 },
    { &Portada::JugarB1, Qt::Key_F9 },
    { &Portada::E1, Qt::CTRL | Qt::Key_E, true },
    { &Portada::D1, Qt::CTRL | Qt::Key_T },
    { &Portada::FlechaE2, Qt::CTRL | Qt::Key_W },
    { &Portada::Flecha2, Qt::CTRL | Qt::Key_Q },
};

struct TeclaDelTelevisor {
    forms::Image *Portada::*punto;
    Qt::Key tecla; // with Ctrl
};

const TeclaDelTelevisor TeclasDelTelevisor[] = {
    { &Portada::X2, Qt::Key_2 },
    { &Portada::X3, Qt::Key_3 },
    { &Portada::X4, Qt::Key_4 },
    { &Portada::X5, Qt::Key_5 },
    { &Portada::OFF, Qt::Key_0 },
};

constexpr QKeyCombination TeclaDeWEB1 = Qt::CTRL | Qt::Key_1;
constexpr QKeyCombination TeclaDeWEB2 = Qt::CTRL | Qt::SHIFT | Qt::Key_1;

QString enPalabras(QKeyCombination tecla, const core::Palabras &palabras)
{
    QString nombre = QKeySequence(tecla.key()).toString(QKeySequence::PortableText);
    if (tecla.keyboardModifiers().testFlag(Qt::ShiftModifier))
        nombre.prepend(palabras.Zem_Mayus + u'+');
    if (tecla.keyboardModifiers().testFlag(Qt::ControlModifier))
        nombre.prepend(palabras.Zem_Ctrl + u'+');
    return nombre;
}

} // namespace

void Portada::ConectaTeclado()
{
    for (const Acelerador &acelerador : Aceleradores)
        (this->*acelerador.boton)->setShortcut(acelerador.tecla);

    const auto conTecla = [this](QKeyCombination tecla, auto accion) {
        m_teclasDelTelevisor.push_back(new QShortcut(tecla, this));
        connect(m_teclasDelTelevisor.back(), &QShortcut::activated, this, accion);
    };
    for (const auto &[punto, tecla] : TeclasDelTelevisor)
        conTecla(Qt::CTRL | tecla, [control = this->*punto] { control->Click.raise(); });
    conTecla(TeclaDeWEB1, [this] { PulsaWeb(*WEB1); });
    conTecla(TeclaDeWEB2, [this] { PulsaWeb(*WEB2); });

    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { Escape(); });

    Lista1->MenuKey = [this] {
        if (!Lista1->Text().isEmpty())
            Menu_Lista1->PopupUnder(*Lista1->viewport(), Lista1->RowPlace(Lista1->ListIndex()));
    };
    for (forms::Image *imagen : { Graf_TV, Graf_Imagen })
        imagen->MenuKey = [this] { Menu_Graf_Imagen->PopupOver(*Graf_Imagen); };
    // Space holds the glass over it, as the mouse does.
    Graf_Imagen->setFocusPolicy(Qt::TabFocus);
    Editor->setTabChangesFocus(true);
    OrdenaFoco();
}

QString Portada::TeclaDe(const QWidget &control) const
{
    for (const Acelerador &acelerador : Aceleradores) {
        if (this->*acelerador.boton == &control)
            return enPalabras(acelerador.tecla, M.Palabras);
    }
    for (const auto &[punto, tecla] : TeclasDelTelevisor) {
        if (this->*punto == &control)
            return enPalabras(Qt::CTRL | tecla, M.Palabras);
    }
    if (&control == WEB1 || &control == WEB2)
        return enPalabras(&control == WEB1 ? TeclaDeWEB1 : TeclaDeWEB2, M.Palabras);
    return {};
}

// Leaves what lies over the screen.
void Portada::Escape()
{
    if (Aumento.isVisible())
        Aumento.hide();
    else if (Editor->isVisible())
        FlechaE2->click();
}

void Portada::PulsaWeb(forms::Label &web)
{
    if (!web.isEnabled())
        return;
    web.MouseDown.raise({ forms::LeftButton });
    web.MouseUp.raise({ forms::LeftButton });
}

void Portada::OrdenaFoco()
{
    const std::array<QWidget *, 24> orden { Lista1, BotonA2, BotonB2, Menos2a, Combo1, Menos2b, Combo2,
        BotonC2, BotonD2, JugarB1, Graf_Imagen, Boton1b, Boton2b, Boton3b, Boton5b, Boton4b, Boton6b, Check1,
        E1, D1, Flecha2, Editor, Edit2, BlocDeNotas2 };
    for (size_t i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
    setTabOrder(BlocDeNotas2, FlechaE2);
}

// What lies under an open text neither takes the focus, whoever gives it, nor hears its keys.
void Portada::DejaElTecladoAlEditor(bool abierto)
{
    for (QWidget *control : std::initializer_list<QWidget *> {
             Lista1, Combo1, Combo2, BotonA2, BotonB2, Menos2a, Boton1b, Boton2b, E1, Graf_Imagen })
        control->setFocusProxy(abierto ? Editor : nullptr);
    for (const Acelerador &acelerador : Aceleradores) {
        if (acelerador.tapado)
            (this->*acelerador.boton)->setShortcut(abierto ? QKeySequence() : acelerador.tecla);
    }
    for (QShortcut *tecla : m_teclasDelTelevisor)
        tecla->setEnabled(!abierto);
}

} // namespace mainscreen
