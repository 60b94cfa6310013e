#include "escenario.h"

#include "launch/jugar.h"
#include "launch/vbunzbas.h"

#include "host/paths.h"
#include "host/process.h"

#include <stdexcept>

#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Sistema = 3;
constexpr int Fila = 2;

} // namespace

QString Respuestas::askText(const QString &prompt)
{
    preguntas << prompt;
    if (contraseñas.isEmpty()) {
        ADD_FAILURE() << "an unexpected prompt";
        return {};
    }
    return contraseñas.takeFirst();
}

host::Questions::Answer Respuestas::askYesNoCancel(const QString &title, const QString &text)
{
    preguntas << title + u": "_s + text;
    if (sobreescribir.isEmpty()) {
        ADD_FAILURE() << "an unexpected question: " << text.toStdString();
        return Answer::Cancel;
    }
    if (alDecir)
        alDecir();
    return sobreescribir.takeFirst();
}

bool Respuestas::askYesNo(const QString &, const QString &text)
{
    ADD_FAILURE() << "an unexpected question: " << text.toStdString();
    return false;
}

void Respuestas::tell(const QString &title, const QString &text)
{
    dichos << title + u": "_s + text;
    if (alDecir)
        alDecir();
}

void Respuestas::endWithError(const QString &title, const QString &text)
{
    throw std::runtime_error((title + u": "_s + text).toStdString());
}

void Respuestas::endProcess(int status)
{
    throw std::runtime_error("the end of the process with status " + std::to_string(status));
}

void PantallaDePrueba::Cede(int descriptor, int milisegundos)
{
    ++cesiones;
    anota(u"Cede %1"_s.arg(milisegundos));
    pollfd fin { descriptor, POLLIN, 0 };
    poll(&fin, 1, milisegundos);
}

void PantallaDePrueba::Aviso(const QString &titulo, const QString &texto)
{
    anota(u"Aviso "_s + titulo + u": "_s + texto);
}

QStringList PantallaDePrueba::llamadasFueraDeLaEspera() const
{
    QStringList resto;
    for (const QString &llamada : llamadas) {
        if (!llamada.startsWith(u"Cede") && llamada != u"InfoEnNegro" && llamada != u"LLena_INFO")
            resto << llamada;
    }
    return resto;
}

void PantallaDePrueba::anota(const QString &llamada)
{
    llamadas << llamada;
    if (enLlamada)
        enLlamada(llamada);
}

Escenario::Escenario()
    : m_temporal(qgetenv("TMPDIR"))
{
    makeDirectory("program");
    makeDirectory("emu");
    makeDirectory("roms");
    makeDirectory("out");
    makeDirectory("tmp");
    setMode("tmp", 0700);
    qputenv("TMPDIR", place("tmp"));
    host::rememberEnvironment();
    host::setProgramDirectory(path(u"program"_s));
    launch::OlvidaSaltarContraseña();
    M.Msg_ZipSinRoms0 = u"Zip0"_s;
    M.Msg_ZipSinRoms1 = u"Zip1"_s;
    M.Palabras.Zem_NoZip0 = u"No0"_s;
    M.Palabras.Zem_NoZip1 = u"No1"_s;
    M.Palabras.Zem_NoJunto0 = u"Junto0"_s;
    M.Palabras.Zem_NoJunto1 = u"Junto1"_s;
    M.DebugMode = u"0"_s;
    M.MsgEndDOS = u"Finalizado"_s;
    EXPECT_EQ(chdir(place("program").constData()), 0);
}

Escenario::~Escenario()
{
    host::setProgramDirectory({});
    if (m_temporal.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", m_temporal);
}

void Escenario::PonEmulador(int tipo, const QString &par1, const QString &par2)
{
    makeFile("emu/emu.sh",
        "#!/bin/sh\n"
        "OUT='"
            + place("out")
            + "'\n"
              "printf '%s\\0' \"$0\" \"$@\" > \"$OUT/arguments\"\n"
              "pwd > \"$OUT/directory\"\n"
              ": > \"$OUT/opened\"\n"
              "for a in \"$@\"; do [ -f \"$a\" ] && cat -- \"$a\" >> \"$OUT/opened\"; done\n"
              "if [ -e \"$OUT/hook\" ]; then . \"$OUT/hook\"; fi\n");
    setMode("emu/emu.sh", 0755);
    M.Cat_XDI(Sistema, Fila) = u"XDI="_s + QString::number(tipo);
    M.Cat_EXE(Sistema, Fila) = u"EXE="_s + path(u"emu/emu.sh"_s);
    M.Cat_ROM(Sistema, Fila) = u"ROM="_s + path(u"roms/"_s);
    M.Cat_PAR1(Sistema, Fila) = u"PAR1="_s + par1;
    M.Cat_PAR2(Sistema, Fila) = u"PAR2="_s + par2;
}

void Escenario::PonExtensiones(const QStringList &extensiones)
{
    for (int k = 0; k < extensiones.size(); ++k)
        M.Cat_EXT(Sistema, k) = extensiones[k];
}

void Escenario::PonNota(int indice, const QString &clave, const QString &texto)
{
    M.Nota_Clave(indice) = clave;
    M.Nota_Texto(indice) = texto;
}

void Escenario::PonParametros(const QByteArray &registros)
{
    makeFile(
        "program/Zembro.rom", "[\r\nParametros especificos\r\n" + registros + "'\r\nfin\r\nfin,\"fin\"\r\n");
}

void Escenario::PonROM(const QByteArray &nombre, const QByteArray &bytes) const
{
    makeFile("roms/" + nombre, bytes);
}

void Escenario::HazDuranteElJuego(const QByteArray &lineas) const
{
    makeFile("out/hook", lineas);
}

void Escenario::PonPalabrasDeEncargo()
{
    M.Palabras.Zem_Falta0 = u"Missing"_s;
    M.Palabras.Zem_FaltaDOSBox = u"DOSBox"_s;
    M.Palabras.Zem_FaltaWine = u"Wine"_s;
    M.Palabras.Zem_NoDOS0 = u"No"_s;
    M.Palabras.Zem_NombreDOS = u"Name"_s;
    M.Palabras.Zem_LargoDOS = u"Length"_s;
    M.Palabras.Zem_SignoDOS = u"Sign"_s;
    M.Palabras.Zem_NoTmp0 = u"Not started"_s;
    M.Palabras.Zem_NoTmp1 = u"Full"_s;
    M.Palabras.Zem_Discos = u"Drives"_s;
    M.Palabras.Zem_SinUnidad = u"No %1:"_s;
    M.Palabras.Zem_NoVuelve0 = u"Kept"_s;
    M.Palabras.Zem_NoVuelve1 = u"%1 in %2"_s;
    M.Palabras.Zem_NoWindows0 = u"No Windows"_s;
    M.Palabras.Zem_NombreWin = u"Name of Windows"_s;
}

void Escenario::Juega()
{
    launch::Jugar(M, pantalla);
}

bool Escenario::HuboJuego() const
{
    return exists("out/arguments");
}

QByteArrayList Escenario::Argumentos() const
{
    QByteArrayList palabras = bytes("out/arguments").value_or(QByteArray("no game\0", 8)).split('\0');
    palabras.removeLast();
    return palabras.sliced(1);
}

QByteArray Escenario::Programa() const
{
    return bytes("out/arguments").value_or(QByteArray("no game\0", 8)).split('\0').first();
}

QByteArray Escenario::DirectorioDelJuego() const
{
    return bytes("out/directory").value_or("no game\n").chopped(1);
}

QByteArray Escenario::Abierto() const
{
    return bytes("out/opened").value_or("no game");
}

QByteArray Escenario::Anotado(const QByteArray &nombre) const
{
    return bytes("out/" + nombre).value_or("no record");
}

QString Escenario::Corta(const QString &nombre) const
{
    return path().toLower() + u'/' + nombre;
}
