#include "zipdeprueba.h"

#include <archive.h>
#include <archive_entry.h>

namespace {

quint32 suma(const QByteArray &datos)
{
    quint32 resto = 0xffffffff;
    for (const char byte : datos) {
        resto ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            resto = (resto >> 1) ^ ((resto & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~resto;
}

class Bytes {
public:
    Bytes &dos(quint32 valor)
    {
        m_bytes.append(char(valor)).append(char(valor >> 8));
        return *this;
    }
    Bytes &cuatro(quint32 valor) { return dos(valor & 0xffff).dos(valor >> 16); }
    Bytes &texto(const QByteArray &texto)
    {
        m_bytes.append(texto);
        return *this;
    }
    const QByteArray &bytes() const { return m_bytes; }
    quint32 total() const { return quint32(m_bytes.size()); }

private:
    QByteArray m_bytes;
};

// The part that the local header and the directory's entry have in common.
void comun(Bytes &salida, const MiembroZip &miembro)
{
    const quint32 total = quint32(miembro.datos.size());
    salida.dos(20).dos(miembro.utf8 ? 0x800 : 0).dos(0).dos(0).dos(0x21);
    salida.cuatro(suma(miembro.datos) + (miembro.sumaFalsa ? 1 : 0)).cuatro(total).cuatro(total);
    salida.dos(quint32(miembro.nombre.size())).dos(0);
}

} // namespace

QByteArray Zip(const QList<MiembroZip> &miembros)
{
    Bytes cuerpo;
    Bytes directorio;
    for (const MiembroZip &miembro : miembros) {
        const quint32 lugar = cuerpo.total();
        comun(cuerpo.texto("PK\3\4"), miembro);
        cuerpo.texto(miembro.nombre).texto(miembro.datos);
        comun(directorio.texto("PK\1\2").dos(miembro.enUnix ? 20 | (3 << 8) : 20), miembro);
        directorio.dos(0).dos(0).dos(0).cuatro(miembro.atributos).cuatro(lugar).texto(miembro.nombre);
    }
    const quint32 total = quint32(miembros.size());
    Bytes fin;
    fin.texto("PK\5\6")
        .dos(0)
        .dos(0)
        .dos(total)
        .dos(total)
        .cuatro(directorio.total())
        .cuatro(cuerpo.total())
        .dos(0);
    return cuerpo.bytes() + directorio.bytes() + fin.bytes();
}

QByteArray ZipCifrado(const QList<MiembroZip> &miembros, const QByteArray &contraseña)
{
    QByteArray bytes(1 << 20, '\0');
    size_t usados = 0;
    archive *archivo = archive_write_new();
    archive_write_set_format_zip(archivo);
    archive_write_set_options(archivo, "zip:encryption=traditional");
    archive_write_set_passphrase(archivo, contraseña.constData());
    archive_write_open_memory(archivo, bytes.data(), size_t(bytes.size()), &usados);
    for (const MiembroZip &miembro : miembros) {
        archive_entry *entrada = archive_entry_new();
        archive_entry_set_pathname(entrada, miembro.nombre.constData());
        archive_entry_set_filetype(entrada, AE_IFREG);
        archive_entry_set_perm(entrada, 0644);
        archive_entry_set_size(entrada, miembro.datos.size());
        archive_write_header(archivo, entrada);
        archive_write_data(archivo, miembro.datos.constData(), size_t(miembro.datos.size()));
        archive_entry_free(entrada);
    }
    archive_write_close(archivo);
    archive_write_free(archivo);
    return bytes.first(qsizetype(usados));
}
