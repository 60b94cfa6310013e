#include "launch/ensayo.h"

#include "launch/carpetadejuego.h"
#include "launch/intenta.h"
#include "launch/obras.h"
#include "launch/temporal.h"

#include "host/encoding.h"
#include "host/paths.h"

namespace launch {

namespace {

class ObrasDeEnsayo : public Obras {
public:
    Ensayo ensayo;

    void Juego(const QString &, const QString &, const QString &) override { }
    void BarreTemporal() override { }
    void RecogeTemporal() override { launch::RecogeTemporal(); }

    bool HazTemporal(const QString &carpeta) override
    {
        m_nueva = true; // its plain files are swept ahead of it
        return host::findOnDisk(carpeta).isEmpty() || EsDirectorioPropio(carpeta);
    }
    void VaciaTemporal(const QString &) override { }

    QString AbreCarpeta(const QString &ExeDir, const QString &Carpeta) override
    {
        const std::optional<CarpetaPosible> posible = CarpetaQueSeHaria(ExeDir, Carpeta);
        m_nueva = posible && posible->nueva;
        return posible ? posible->ruta : QString();
    }
    void LimpiaCarpeta(const QStringList &) override { }

    Desempaquetado Desempaqueta(const QString &ArchivoZip, const QString &destino) override
    {
        Ensayo::Zip zip { host::trueSpelling(ArchivoZip), destino, ContenidoDe(ArchivoZip), {}, {}, m_nueva };
        const QStringList &posibles =
            m_nueva ? zip.miembros.masAbajo : zip.miembros.ficheros + zip.miembros.masAbajo;
        for (const QString &fichero : posibles) {
            if (host::exists(destino + u'/' + fichero))
                zip.queEstan += fichero;
        }
        if (m_nueva) // what earlier launches left in the temporary directory
            Intenta([&] { zip.seQuedan = host::listDirectories(destino); });
        for (const QString &subdirectorio : zip.miembros.subdirectorios) {
            if (!zip.seQuedan.contains(subdirectorio))
                zip.seQuedan += subdirectorio;
        }
        zip.seVaEntero = m_nueva && zip.seQuedan.isEmpty();
        ensayo.zip = zip;
        return zip.miembros;
    }
    QStringList FicherosEn(const QString &) override
    {
        return ensayo.zip ? ensayo.zip->miembros.ficheros : QStringList();
    }

    void Aviso(const QString &titulo, const QString &texto) override
    {
        ensayo.tituloDeAviso = titulo;
        ensayo.aviso = texto;
    }
    void AvisoPrevio(const QString &titulo, const QString &texto) override { Aviso(titulo, texto); }
    void EnsenaOrden(const QString &) override { ensayo.enDepuracion = true; }
    void Arranca(const LineaDeOrden &orden, const QString &, const Lugares &lugares) override
    {
        ensayo.orden = orden;
        ensayo.encargo = EncargoDe(orden, lugares);
        ensayo.directorio = host::currentDirectory();
    }

private:
    bool m_nueva = true;
};

} // namespace

Ensayo Ensaya(core::Modulo &M, Pantalla &pantalla)
{
    ObrasDeEnsayo obras;
    Juega(M, pantalla, obras);
    return obras.ensayo;
}

} // namespace launch
