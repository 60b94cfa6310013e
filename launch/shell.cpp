#include "launch/shell.h"

#include "host/encoding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

bool esLlano(QChar letra)
{
    return (letra >= u'a' && letra <= u'z') || (letra >= u'A' && letra <= u'Z')
        || (letra >= u'0' && letra <= u'9') || u"_@%+=:,./-"_s.contains(letra);
}

// Bytes that are no text come as private-use characters.
bool pideNumero(QChar letra)
{
    return !letra.isPrint() || letra.category() == QChar::Other_PrivateUse || letra == u'\\';
}

QString conNumeros(const QString &argumento)
{
    QString resultado = u"$'"_s;
    for (const QChar letra : argumento) {
        if (letra == u'\'') {
            resultado += u"\\x27"_s;
        } else if (pideNumero(letra) && !letra.isSurrogate()) {
            for (const char byte : host::nameToDisk(QString(letra)))
                resultado += u"\\x"_s
                    + QString::number(static_cast<unsigned char>(byte), 16).toUpper().rightJustified(2, u'0');
        } else {
            resultado += letra;
        }
    }
    return resultado + u'\'';
}

QString uno(const QString &argumento)
{
    if (!argumento.isEmpty() && std::ranges::all_of(argumento, esLlano))
        return argumento;
    const bool raro = std::ranges::any_of(
        argumento, [](QChar letra) { return pideNumero(letra) && letra != u'\\' && !letra.isSurrogate(); });
    if (raro)
        return conNumeros(argumento);
    return u'\'' + QString(argumento).replace(u'\'', u"'\\''"_s) + u'\'';
}

} // namespace

QString EnShell(const QStringList &argumentos)
{
    QStringList partes;
    for (const QString &argumento : argumentos)
        partes += uno(argumento);
    return partes.join(u' ');
}

namespace {

class Lector {
public:
    explicit Lector(const QByteArray &linea)
        : m_linea(linea)
    {
    }

    QStringList Todos()
    {
        while (m_lugar < m_linea.size())
            Paso();
        Acaba();
        return m_argumentos;
    }

private:
    void Paso()
    {
        if (m_linea.sliced(m_lugar).startsWith("$'"))
            Numeros();
        else if (m_linea[m_lugar] == '\'')
            Comillas();
        else if (m_linea[m_lugar] == ' ')
            Acaba();
        else
            Letra();
        ++m_lugar;
    }
    void Letra()
    {
        if (m_linea[m_lugar] == '\\')
            ++m_lugar;
        Pon(m_linea.mid(m_lugar, 1));
    }
    void Comillas()
    {
        const qsizetype fin = FinDesde(m_lugar + 1);
        Pon(m_linea.sliced(m_lugar + 1, fin - m_lugar - 1));
        m_lugar = fin;
    }
    void Numeros()
    {
        const qsizetype fin = FinDesde(m_lugar + 2);
        for (m_lugar += 2; m_lugar < fin; ++m_lugar) {
            if (m_linea.sliced(m_lugar).startsWith("\\x")) {
                Pon(QByteArray::fromHex(m_linea.mid(m_lugar + 2, 2)));
                m_lugar += 3;
            } else {
                Pon(m_linea.mid(m_lugar, 1));
            }
        }
        m_lugar = fin;
    }
    qsizetype FinDesde(qsizetype lugar) const
    {
        const qsizetype fin = m_linea.indexOf('\'', lugar);
        return fin < 0 ? m_linea.size() : fin;
    }
    void Pon(const QByteArray &bytes)
    {
        m_actual += bytes;
        m_empezado = true;
    }
    void Acaba()
    {
        if (m_empezado)
            m_argumentos += host::nameFromDisk(m_actual);
        m_actual.clear();
        m_empezado = false;
    }

    const QByteArray m_linea;
    qsizetype m_lugar = 0;
    QStringList m_argumentos;
    QByteArray m_actual;
    bool m_empezado = false;
};

} // namespace

QStringList DeShell(const QString &linea)
{
    return Lector(host::nameToDisk(linea)).Todos();
}

} // namespace launch
