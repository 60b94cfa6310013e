// What the walk starts from: files with lines of the user's own, and names as odd as they are let in.
#include "paseo.h"

#include "core/nombres.h"

#include <iterator>

using namespace Qt::StringLiterals;

QString Paseo::ConFin(const QString &linea)
{
    return linea + (Azar(3) == 0 ? u"\n"_s : u"\r\n"_s);
}

// A line of the user's own that is no anchor of any operation.
QString Paseo::Propia()
{
    static const QString lineas[] = { QString(), u"mine"_s, u" -S"_s, u"; +E"_s, u"exe=1"_s, u"WEB3=1"_s,
        u"*"_s, u"\"'\""_s, u"ñ\x81"_s, u"Rom"_s };
    return ConFin(lineas[Azar(std::size(lineas))]);
}

QStringList Paseo::Propias()
{
    QStringList lineas;
    while (Azar(4) == 0)
        lineas += Propia();
    return lineas;
}

QString Paseo::NombreNuevo(const QString &clase)
{
    static const QString principios[] = { QString(), QString(), u"-"_s, u"+"_s, u"'"_s, u"["_s, u" "_s,
        u"*."_s, u"WEB1="_s, u"EXE"_s, u"\""_s, u"Parametros "_s };
    static const QString finales[] = { QString(), u" ñ"_s, u"/b"_s, u" \"q\""_s, u" '"_s, u", c"_s, u" "_s,
        u",\"q\""_s, u",a,b,c"_s, u"\n-x"_s };
    for (;;) {
        const QString nombre = principios[Azar(std::size(principios))] + clase + QString::number(++m_nombres)
            + finales[Azar(std::size(finales))];
        if (clase == u"S" ? core::SirveDeSistema(nombre) : core::SirveDeEmulador(nombre))
            return nombre;
        ++m_rechazados;
    }
}

QStringList Paseo::Extensiones()
{
    QStringList extensiones;
    for (size_t i = Azar(4); i > 0; --i)
        extensiones += u"E%1"_s.arg(Azar(100));
    return extensiones;
}

SistemaDeBase Paseo::SistemaAlAzar()
{
    SistemaDeBase sistema;
    sistema.nombre = NombreNuevo(u"S"_s);
    sistema.linea = ConFin(u'-' + sistema.nombre);
    sistema.antesDeWeb = Propias();
    sistema.web = ConFin(u"WEB1=w"_s);
    for (const QString &extension : Extensiones())
        sistema.extensiones += ConFin(u"*."_s + extension);
    sistema.extensiones += Propias();
    sistema.apostrofo = ConFin(u"'"_s);
    sistema.detrasDelApostrofo = Propias();
    for (size_t i = Azar(3); i > 0; --i) {
        const QString nombre = NombreNuevo(u"E"_s);
        sistema.emuladores.push_back(
            { nombre, ConFin(u'+' + nombre), Propias(), ConFin(u"WEB2=w"_s), Propias() });
    }
    sistema.cierre = ConFin(u"'----"_s);
    sistema.detras = Propias();
    return sistema;
}

void Paseo::MontaBase()
{
    m_sye.cabecera = { ConFin(u"' top"_s), Propia() };
    m_sye.fin = { ConFin(u"[EOF]"_s), Propia(), u"last"_s };
    for (int i = 0; i < 3; ++i)
        m_sye.sistemas.push_back(SistemaAlAzar());
    m_textoSye = TextoDe(m_sye);
}

// One system with blocks that no save has written.
void Paseo::MontaCatalogo()
{
    m_emu.cabecera = { Propia(), ConFin(u"' top"_s) };
    m_emu.fin = { u"[EOF]"_s };
    const SistemaDeBase &base = m_sye.sistemas.front();
    SistemaDeCatalogo sistema { base.nombre, ConFin(u'-' + base.nombre), Propias(), ConFin(u"WEB1=w"_s),
        { ConFin(u"*.Z"_s) }, {}, {}, ConFin(u"'----"_s), Propias() };
    for (const EmuladorDeBase &emulador : base.emuladores)
        sistema.emuladores.push_back({ emulador.nombre, ConFin(u"'"_s), Propias(),
            ConFin(u'+' + emulador.nombre), Propias(), ConFin(u"WEB2=w"_s), Propias() });
    if (!sistema.emuladores.empty())
        m_emu.sistemas.push_back(sistema);
    m_textoEmu = TextoDe(m_emu);
}

void Paseo::MontaNotas()
{
    m_rom.cabecera = { ConFin(u"' top"_s), ConFin(QString()) };
    for (const SistemaDeBase &sistema : m_sye.sistemas)
        m_rom.sistemas.push_back(
            { sistema.nombre, ConFin(sistema.nombre), { ConFin(u"K,\"d\""_s) }, ConFin(u"'"_s) });
    m_rom.fin = { ConFin(u"[EOF]"_s), ConFin(u"Parametros especificos"_s) };
    m_rom.cierre = { ConFin(u"'"_s), ConFin(u"fin"_s), ConFin(u"fin,\"fin\""_s) };
    m_rom.detras = { ConFin(QString()), u"last"_s };
    m_textoRom = TextoDe(m_rom);
}
