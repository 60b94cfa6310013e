#include "core/lineasvacias.h"

#include "core/lineas.h"
#include "core/notas.h"
#include "core/remiendos.h"

#include "host/textsource.h"

#include <QSet>

#include <algorithm>

namespace core {

namespace {

int cuantosCampos(QStringView linea)
{
    host::TextSource fuente(linea.toString());
    int campos = 0;
    for (; !fuente.atEnd(); ++campos)
        fuente.readField();
    return campos;
}

// What the lines of a block hold, one after the other.
class EntreRegistros {
public:
    // Of records of so many fields; none is no block.
    void Empieza(int campos)
    {
        m_campos = campos;
        m_leidos = 0;
        m_vacias.clear();
    }

    bool Dentro() const { return m_campos > 0; }

    void Vacia(size_t indice)
    {
        if (m_leidos > 0)
            m_leidos = (m_leidos + 1) % m_campos;
        else
            m_vacias.push_back(indice);
    }

    void Registro(QStringView linea, std::vector<size_t> &vacias)
    {
        Confirma(vacias);
        const int todos = m_leidos + cuantosCampos(linea);
        m_leidos = todos < m_campos ? todos : 0; // each whole record begins anew
    }

    void Confirma(std::vector<size_t> &vacias)
    {
        vacias.insert(vacias.end(), m_vacias.begin(), m_vacias.end());
        m_vacias.clear();
    }

private:
    int m_campos = 0;
    int m_leidos = 0; // of the record that isn't whole yet
    std::vector<size_t> m_vacias; // behind the last record
};

constexpr int EnLasNotas = 2;
constexpr int EnLosParametros = 4;

} // namespace

std::vector<size_t> VaciasEntreRegistros(const QString &texto, const QStringList &sistemas)
{
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const size_t fin = FinDeLosParametros(lineas);
    std::vector<size_t> vacias;
    EntreRegistros bloque;
    bool enParametros = false;
    for (size_t i = 0; i < fin; ++i) {
        const QStringView linea = lineas[i].linea;
        if (linea.trimmed().isEmpty()) {
            if (bloque.Dentro())
                bloque.Vacia(i);
        } else if (!enParametros && linea.startsWith(CabeceraParametros)) {
            enParametros = true;
            bloque.Empieza(EnLosParametros);
        } else if (!enParametros && nombres.contains(linea.toString())) {
            bloque.Empieza(EnLasNotas);
        } else if (bloque.Dentro() && CierraLasNotas(linea)) {
            bloque.Confirma(vacias);
            if (enParametros)
                break;
            bloque.Empieza(0);
        } else if (!enParametros && AcabaLosSistemas(lineas, i, sistemas)) {
            bloque.Empieza(0);
        } else if (bloque.Dentro()) {
            bloque.Registro(linea, vacias);
        }
    }
    return vacias;
}

QString SinVaciasEntreRegistros(const QString &texto, const QStringList &sistemas)
{
    const std::vector<size_t> vacias = VaciasEntreRegistros(texto, sistemas);
    if (vacias.empty())
        return texto;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (!std::ranges::binary_search(vacias, i))
            copia.Copiar(lineas[i]);
    }
    return copia.Texto();
}

} // namespace core
