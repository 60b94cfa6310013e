#include "zipdeprueba.h"

namespace {

quint32 sumaCon(quint32 resto, char byte)
{
    resto ^= quint8(byte);
    for (int bit = 0; bit < 8; ++bit)
        resto = (resto >> 1) ^ ((resto & 1) != 0 ? 0xedb88320 : 0);
    return resto;
}

quint32 suma(const QByteArray &datos)
{
    quint32 resto = 0xffffffff;
    for (const char byte : datos)
        resto = sumaCon(resto, byte);
    return ~resto;
}

// The traditional cipher of ZIP archives.
class Cifra {
public:
    explicit Cifra(const QByteArray &contraseña)
    {
        for (const char byte : contraseña)
            avanza(byte);
    }

    QByteArray de(const QByteArray &claro)
    {
        QByteArray cifrado;
        for (const char byte : claro) {
            const quint32 t = (m_clave2 | 2) & 0xffff;
            cifrado.append(char(quint8(byte) ^ quint8((t * (t ^ 1)) >> 8)));
            avanza(byte);
        }
        return cifrado;
    }

private:
    void avanza(char byte)
    {
        m_clave0 = sumaCon(m_clave0, byte);
        m_clave1 = (m_clave1 + (m_clave0 & 0xff)) * 134775813 + 1;
        m_clave2 = sumaCon(m_clave2, char(m_clave1 >> 24));
    }

    quint32 m_clave0 = 0x12345678;
    quint32 m_clave1 = 0x23456789;
    quint32 m_clave2 = 0x34567890;
};

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
void comun(Bytes &salida, const MiembroZip &miembro, const QByteArray &guardado, bool cifrado)
{
    salida.dos(20).dos((miembro.utf8 ? 0x800 : 0) | (cifrado ? 1 : 0));
    salida.dos(quint32(miembro.comprimido ? 8 : miembro.metodo)).dos(0).dos(0x21);
    salida.cuatro(suma(miembro.datos) + (miembro.sumaFalsa ? 1 : 0));
    salida.cuatro(quint32(guardado.size())).cuatro(quint32(miembro.datos.size()));
    salida.dos(quint32(miembro.nombre.size())).dos(0);
}

// The data ahead of any cipher.
QByteArray guardados(const MiembroZip &miembro)
{
    QByteArray datos = miembro.datos;
    if (miembro.comprimido) {
        // Without the length, the head of two bytes and the checksum of four.
        datos = datos.isEmpty() ? QByteArray("\3\0", 2) : qCompress(datos).sliced(6).chopped(4);
    }
    if (miembro.datosRotos)
        datos.replace(datos.size() / 2, 16, QByteArray(16, '\xff'));
    return datos;
}

// The data as they lie in the archive: behind twelve bytes, the last of which lets a reader check the
// password.
QByteArray cifrados(const MiembroZip &miembro, const QByteArray &contraseña)
{
    return Cifra(contraseña).de(QByteArray(11, 'z') + char(suma(miembro.datos) >> 24) + guardados(miembro));
}

QByteArray hazZip(
    const QList<MiembroZip> &miembros, const QByteArray &contraseña, const QByteArray &comentario = {})
{
    const bool cifrado = !contraseña.isEmpty();
    Bytes cuerpo;
    Bytes directorio;
    for (const MiembroZip &miembro : miembros) {
        const QByteArray guardado = cifrado ? cifrados(miembro, contraseña) : guardados(miembro);
        const quint32 lugar = cuerpo.total();
        comun(cuerpo.texto("PK\3\4"), miembro, guardado, cifrado);
        cuerpo.texto(miembro.nombre).texto(guardado);
        comun(
            directorio.texto("PK\1\2").dos(quint32(20 | (miembro.sistema << 8))), miembro, guardado, cifrado);
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
        .dos(quint32(comentario.size()))
        .texto(comentario);
    return cuerpo.bytes() + directorio.bytes() + fin.bytes();
}

} // namespace

QByteArray Zip(const QList<MiembroZip> &miembros)
{
    return hazZip(miembros, {});
}

QByteArray ZipTrasOtrosBytes(
    const QList<MiembroZip> &miembros, const QByteArray &otros, const QByteArray &comentario)
{
    return otros + hazZip(miembros, {}, comentario);
}

QByteArray ZipCifrado(const QList<MiembroZip> &miembros, const QByteArray &contraseña)
{
    return hazZip(miembros, contraseña);
}
