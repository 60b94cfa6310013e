// Command lines: what becomes an argument.
#include "entrada.h"
#include "temas.h"

#include "launch/busquedarom.h"
#include "launch/lineadeorden.h"

#include "host/process.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

void parametros(const QString &texto)
{
    const QStringList argumentos = host::splitArguments(texto);
    if (!texto.contains(u'"')) {
        QString juntos = argumentos.join(QString());
        QString seria = texto;
        seria.removeIf([](QChar letra) { return letra.isSpace(); });
        juntos.removeIf([](QChar letra) { return letra.isSpace(); });
        ExigeIgual(juntos, seria, "no letter of the parameters is lost");
        for (const QString &argumento : argumentos)
            Exige(!argumento.isEmpty() && !argumento.contains(u' '), "a blank parts arguments", texto);
    }
    for (const QString &argumento : argumentos)
        Exige(!argumento.contains(u'"'), "quotes go", texto, argumento);
}

// The program, parameters, a path with blanks around it, parameters: whatever they hold, the path is one
// argument.
void linea(Entrada &entrada)
{
    const QString programa = entrada.Nombre();
    const QString delante = entrada.Texto();
    const QString ruta = entrada.Nombre();
    const QString detras = entrada.Texto();
    launch::LineaDeOrden orden;
    orden.Ruta(u"short"_s, programa).Texto(u' ' + delante + u' ').Ruta(u"corta"_s, ruta).Texto(u' ' + detras);
    ExigeIgual(orden.EnTexto(), u"short "_s + delante + u" corta "_s + detras, "the text is blank for blank");
    const QStringList argumentos = orden.Argumentos();
    if (programa.isEmpty()) {
        Exige(argumentos.isEmpty(), "parameters are never run as a program", delante);
        return;
    }
    ExigeIgual(argumentos.value(0), programa, "the program is the first argument");
    // An open quote takes in what follows it.
    if (delante.count(u'"') % 2 != 0)
        return;
    const QStringList antes = host::splitArguments(delante);
    const qsizetype lugar = 1 + antes.size();
    ExigeIgual(
        argumentos.sliced(1, antes.size()).join(u'\n'), antes.join(u'\n'), "what stood ahead stays so");
    if (!ruta.isEmpty())
        ExigeIgual(argumentos.value(lugar), ruta, "a path is one argument");
    ExigeIgual(argumentos.sliced(lugar + (ruta.isEmpty() ? 0 : 1)).join(u'\n'),
        host::splitArguments(detras).join(u'\n'), "what stood behind stays so");
    QStringList enteros = argumentos;
    enteros.removeAll(QString());
    ExigeIgual(launch::LineaDeOrden::DeArgumentos(enteros).Argumentos().join(u'\n'), enteros.join(u'\n'),
        "whole arguments stay whole");
}

void eleccion(Entrada &entrada)
{
    QStringList ficheros;
    QStringList extensiones;
    for (int i = entrada.Numero(8); i > 0; --i)
        ficheros << entrada.Nombre();
    for (int i = entrada.Numero(8); i > 0; --i)
        extensiones << u"*."_s + entrada.Texto();
    const QStringList delArchivo = ficheros.sliced(0, ficheros.size() / 2);
    const QStringList candidatos = launch::Candidatos(ficheros, delArchivo);
    Exige(candidatos.size() <= launch::MaxCandidatos, "there are only so many candidates");
    for (const QString &candidato : candidatos)
        Exige(ficheros.contains(candidato), "a candidate is one of the files", candidato);
    const std::optional<QString> elegido = launch::EligeFichero(candidatos, extensiones);
    Exige(!elegido || elegido->isEmpty() || candidatos.contains(*elegido), "the choice is a candidate");
}

} // namespace

void probarOrdenes(Bytes bytes)
{
    Entrada entrada(bytes);
    parametros(entrada.Texto());
    linea(entrada);
    eleccion(entrada);
}

} // namespace pelusa
