// A program directory in a temporary place, an emulator that records what it gets, a main screen and plain
// boxes that record what they are asked: all that a launch needs, without a screen.
#pragma once

#include "tests/host/disktest.h"

#include "core/modulo.h"
#include "host/questions.h"
#include "launch/pantalla.h"

#include <QStringList>

#include <functional>

// The plain boxes: each has to be expected, with its answer, before it comes.
class Respuestas : public host::Questions {
public:
    Respuestas() { host::setQuestions(this); }
    ~Respuestas() override { host::setQuestions(nullptr); }
    Respuestas(const Respuestas &) = delete;
    Respuestas &operator=(const Respuestas &) = delete;

    QStringList contraseñas; // the answers to come
    QList<Answer> sobreescribir;
    QStringList preguntas; // what was asked: the prompt, or title and text
    QStringList dichos; // what was told, likewise
    std::function<void()> alDecir; // while a box is up

    QString askText(const QString &prompt) override;
    Answer askYesNoCancel(const QString &title, const QString &text) override;
    bool askYesNo(const QString &title, const QString &text) override;
    void tell(const QString &title, const QString &text) override;
    [[noreturn]] void endWithError(const QString &title, const QString &text) override;
    [[noreturn]] void endProcess(int status) override;
};

// The main screen: what stands selected, and every call in its order.
class PantallaDePrueba : public launch::Pantalla {
public:
    QString combo2 = QStringLiteral("Emu");
    QString lista1 = QStringLiteral("mario.nes");
    int entradas = 1;
    int emulador = 1;

    QStringList llamadas;
    int cesiones = 0;
    std::function<void(const QString &llamada)> enLlamada; // runs inside each call

    QString TextoCombo2() const override { return combo2; }
    int Sistema() const override { return 3; }
    int Emulador() const override { return emulador; }
    int EntradasLista1() const override { return entradas; }
    QString TextoLista1() const override { return lista1; }
    void MuestraCargando() override { anota(QStringLiteral("MuestraCargando")); }
    void InfoEnNegro() override { anota(QStringLiteral("InfoEnNegro")); }
    void InfoEnColorDelSistema() override { anota(QStringLiteral("InfoEnColorDelSistema")); }
    void MuestraNingunaROM() override { anota(QStringLiteral("MuestraNingunaROM")); }
    void LLena_INFO() override { anota(QStringLiteral("LLena_INFO")); }
    void SeleccionaEnLista1(const QString &texto) override
    {
        anota(QStringLiteral("SeleccionaEnLista1 ") + texto);
    }
    void EnfocaLista1() override { anota(QStringLiteral("EnfocaLista1")); }
    void Cede(int descriptor, int milisegundos) override;
    void CierraVentana(const QString &) override { }
    void Aviso(const QString &titulo, const QString &texto) override;

    // The calls without those of the watch, whose number nobody knows.
    QStringList llamadasFueraDeLaEspera() const;

private:
    void anota(const QString &llamada);
};

class Escenario : public DiskTest {
protected:
    Escenario();
    ~Escenario() override;

    core::Modulo M;
    PantallaDePrueba pantalla;
    Respuestas respuestas;

    // The catalogue's row of the selected emulator, and an executable "emu.sh" in "emu".
    void PonEmulador(int tipo, const QString &par1 = {}, const QString &par2 = {});
    void PonExtensiones(const QStringList &extensiones);
    void PonNota(int indice, const QString &clave, const QString &texto);
    void PonParametros(const QByteArray &registros); // the records of the section, in a Zembro.rom
    void PonROM(const QByteArray &nombre, const QByteArray &bytes = "a game") const;

    // What the emulator does beside recording: lines of a script; "$OUT" is the directory of the records.
    void HazDuranteElJuego(const QByteArray &lineas) const;

    // Short words for what keeps a program for another system from its start.
    void PonPalabrasDeEncargo();

    void Juega();

    bool HuboJuego() const;
    QByteArrayList Argumentos() const; // without the program
    QByteArray Programa() const;
    QByteArray DirectorioDelJuego() const;
    QByteArray Abierto() const; // the content of the files among the arguments
    QByteArray Anotado(const QByteArray &nombre) const; // a record of HazDuranteElJuego

    QString Corta(const QString &nombre) const; // the short form of a path in the directory

private:
    QByteArray m_temporal;
};
