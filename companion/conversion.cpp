#include "companion/conversion.h"

#include "host/paths.h"
#include "host/reading.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

const QString Conversor = u"Cvtcap.exe"_s;

// Longer than the converter leaves one picture.
constexpr std::chrono::minutes PacienciaConLaImagen(5);

QString rutaDelConversor()
{
    const QString suya = host::executableDirectory() + u'/' + Conversor;
    return host::exists(suya) ? suya : host::programFile(Conversor);
}

// "3", a tab, and what kept the fourth one, if anything did.
void apunta(const QByteArray &linea, std::vector<Convertida> &convertidas)
{
    const QList<QByteArray> partes = linea.split('\t');
    bool esNumero = false;
    const qulonglong numero = partes.first().toULongLong(&esNumero);
    if (!esNumero || partes.size() < 2 || numero >= convertidas.size())
        return;
    convertidas[numero] = { QString::fromUtf8(partes[1]), QString::fromUtf8(partes.value(2)) };
}

} // namespace

std::vector<Convertida> Convierte(const std::vector<PorConvertir> &pares)
{
    QByteArray nombres;
    for (const PorConvertir &par : pares)
        nombres += par.imagen + '\0' + par.captura + '\0';
    // Until it says so none is made.
    std::vector<Convertida> convertidas(pares.size(), Convertida { u"failed"_s, {} });
    QByteArray pendiente;
    host::readProgram({ rutaDelConversor() }, nombres, PacienciaConLaImagen, [&](const QByteArray &bytes) {
        pendiente += bytes;
        qsizetype desde = 0;
        for (qsizetype fin = pendiente.indexOf('\n'); fin >= 0; fin = pendiente.indexOf('\n', desde)) {
            apunta(pendiente.sliced(desde, fin - desde), convertidas);
            desde = fin + 1;
        }
        pendiente.remove(0, desde);
    });
    return convertidas;
}

} // namespace companion
