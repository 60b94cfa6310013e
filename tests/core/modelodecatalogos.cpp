#include "modelodecatalogos.h"

namespace {

QString unidas(const QStringList &lineas)
{
    return lineas.join(QString());
}

QString texto(const EmuladorDeBase &emulador)
{
    return emulador.linea + unidas(emulador.antesDeWeb) + emulador.web + unidas(emulador.detras);
}

QString texto(const EmuladorDeCatalogo &emulador)
{
    return emulador.apostrofo + unidas(emulador.antes) + emulador.linea + unidas(emulador.antesDeWeb)
        + emulador.web + unidas(emulador.resto);
}

QString texto(const SistemaDeBase &sistema);
QString texto(const SistemaDeCatalogo &sistema);
QString texto(const NotasDeUnSistema &sistema);

template <typename Parte> QString textoDeTodos(const std::vector<Parte> &partes)
{
    QString todos;
    for (const Parte &parte : partes)
        todos += texto(parte);
    return todos;
}

QString texto(const SistemaDeBase &sistema)
{
    return sistema.linea + unidas(sistema.antesDeWeb) + sistema.web + unidas(sistema.extensiones)
        + sistema.apostrofo + unidas(sistema.detrasDelApostrofo) + textoDeTodos(sistema.emuladores)
        + sistema.cierre + unidas(sistema.detras);
}

QString texto(const SistemaDeCatalogo &sistema)
{
    return sistema.linea + unidas(sistema.antesDeWeb) + sistema.web + unidas(sistema.extensiones)
        + sistema.apostrofoSuelto + textoDeTodos(sistema.emuladores) + sistema.cierre
        + unidas(sistema.detras);
}

QString texto(const NotasDeUnSistema &sistema)
{
    return sistema.linea + unidas(sistema.notas) + sistema.apostrofo;
}

} // namespace

QString TextoDe(const SistemaDeCatalogo &sistema)
{
    return texto(sistema);
}

QString TextoDe(const Fichero<SistemaDeBase> &fichero)
{
    return unidas(fichero.cabecera) + textoDeTodos(fichero.sistemas) + unidas(fichero.fin);
}

QString TextoDe(const Fichero<SistemaDeCatalogo> &fichero)
{
    return unidas(fichero.cabecera) + textoDeTodos(fichero.sistemas) + unidas(fichero.fin);
}

QString TextoDe(const FicheroDeNotas &fichero)
{
    QString registros;
    for (const RegistroDeParametros &registro : fichero.parametros)
        registros += registro.linea;
    return unidas(fichero.cabecera) + textoDeTodos(fichero.sistemas) + unidas(fichero.fin) + registros
        + unidas(fichero.cierre) + unidas(fichero.detras);
}
