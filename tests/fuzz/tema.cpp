#include "tema.h"

#include "temas.h"

namespace pelusa {

std::span<const Tema> Temas()
{
    static constexpr Tema temas[] = {
        { "codificacion", probarCodificacion },
        { "campos", probarCampos },
        { "catalogo", probarCatalogo },
        { "ajustes", probarAjustes },
        { "idiomas", probarIdiomas },
        { "documentos", probarDocumentos },
        { "notas", probarNotas },
        { "nombrescortos", probarNombresCortos },
        { "rutas", probarRutas },
        { "unidades", probarUnidades },
        { "ordenes", probarOrdenes },
        { "archivos", probarArchivos },
        { "pcx", probarPcx },
        { "altas", probarAltas },
        { "bajas", probarBajas },
        { "cambios", probarCambios },
        { "capturas", probarCapturas },
        { "notasescritas", probarNotasEscritas },
        { "anotaciones", probarAnotaciones },
    };
    return temas;
}

void Exige(bool cierto, const char *propiedad, const QString &una, const QString &otra)
{
    if (cierto)
        return;
    const auto escrito = [](const QString &texto) {
        return texto.isNull()
            ? std::string()
            : "\n  \"" + texto.toUtf8().toPercentEncoding(" !'\"(),-.:;=[]*+\\/<>").toStdString() + '"';
    };
    throw Incumplido(std::string("it doesn't hold that ") + propiedad + escrito(una) + escrito(otra));
}

void ExigeIgual(const QString &es, const QString &seria, const char *propiedad)
{
    Exige(es == seria, propiedad, es.isNull() ? QString(QLatin1String("")) : es,
        seria.isNull() ? QString(QLatin1String("")) : seria);
}

} // namespace pelusa
