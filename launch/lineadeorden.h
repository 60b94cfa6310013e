// A command line in its two forms, made from the same pieces: the text, blank for blank, and the arguments.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace launch {

// The text is what a user of the debug mode sees. Among the arguments a path stays one argument whatever its
// name holds, in its true spelling on the disk; parameters are split at blanks, double quotes grouping;
// pieces with no blank between them join, and empty ones vanish.
class LineaDeOrden {
public:
    LineaDeOrden &Texto(const QString &texto); // parameters, and the blanks between the pieces
    LineaDeOrden &Ruta(
        const QString &texto, const QString &enDisco); // a path: as the text shows it, as it is opened

    QString EnTexto() const;

    // Of arguments that are whole already.
    static LineaDeOrden DeArgumentos(const QStringList &argumentos);

    // Empty if the first piece, the program, is empty: parameters are never run as a program.
    QStringList Argumentos() const;

    struct Pieza {
        QString texto;
        QString enDisco; // of a path; a piece of parameters has none
        bool ruta = false;
    };
    // The program first.
    const std::vector<Pieza> &Piezas() const { return m_piezas; }

private:
    std::vector<Pieza> m_piezas;
};

} // namespace launch
