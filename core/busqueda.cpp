#include "core/busqueda.h"

#include "host/letters.h"

namespace core {

namespace {

QString sinSignos(const QString &texto)
{
    QString letras;
    for (const QChar letra : texto.normalized(QString::NormalizationForm_D)) {
        if (!letra.isMark())
            letras += letra;
    }
    return host::upper(letras);
}

} // namespace

int EntradaQueBusca(const QStringList &entradas, const QString &texto)
{
    const QString buscado = sinSignos(texto);
    if (buscado.isEmpty())
        return -1;
    int contiene = -1;
    for (int i = 0; i < entradas.size(); ++i) {
        const qsizetype lugar = sinSignos(entradas[i]).indexOf(buscado);
        if (lugar == 0)
            return i;
        if (lugar > 0 && contiene < 0)
            contiene = i;
    }
    return contiene;
}

int SiguienteEntrada(const QStringList &entradas, const QString &texto, int desde, Sentido sentido)
{
    const QString buscado = sinSignos(texto);
    const int cuantas = static_cast<int>(entradas.size());
    if (buscado.isEmpty() || cuantas == 0)
        return -1;
    const int paso = sentido == Sentido::Adelante ? 1 : -1;
    int entrada = desde < 0 && paso < 0 ? 0 : desde;
    for (int i = 0; i < cuantas; ++i) {
        entrada = (entrada + paso + cuantas) % cuantas;
        if (sinSignos(entradas[entrada]).contains(buscado))
            return entrada;
    }
    return -1;
}

} // namespace core
