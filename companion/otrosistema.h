// What belongs to pairs whose program is for another system: what runs it, and on which drives.
#pragma once

#include "companion/revision.h"

#include "launch/encargo.h"

#include <QJsonObject>
#include <QStringList>

#include <vector>

namespace companion {

// What would be started for a command, ready for a shell: for DOSBox without a file of its own.
QStringList ArgumentosParaLaConsola(const launch::Encargo &encargo);

// Lines about what runs it; none for a program of this system.
QStringList DichoDe(const Sesion &sesion, const launch::Encargo &encargo);

// The same, put into a command's answer.
void AnadeCorredor(QJsonObject &objeto, const launch::Encargo &encargo);

// Brings back what games saved on drives of runs that were left: lines of what is back, and a finding for
// what can't be.
struct Rescatado {
    QStringList vueltos; // paths
    QStringList lineas;
};
Rescatado RescataLoGuardado(const Sesion &sesion, Revision &revision);

// What is wrong with the drive that a path begins with: none of this letter, or its place isn't there. Empty
// for any other path.
QString FaltaDeUnidad(const QString &ruta, const Palabras &palabras);

// The lines of a text like Zembro.uni that name no drive, or one that isn't there; `directorio` is the one
// that the file lies in.
struct LineaDeUnidad {
    int linea; // counted from 1
    QString clase;
    QString dicho;
};
std::vector<LineaDeUnidad> LineasQueNoCuentan(
    const QString &texto, const QString &directorio, const Palabras &palabras);

// What is wrong with the lines of Zembro.uni, and places of drives that are missing and told of nowhere yet.
void RevisaUnidades(const Sesion &sesion, Revision &revision);

// What would run the program of a pair, by a command without a game; on all the drives that it needs.
launch::Encargo EncargoDe(const core::Modulo &M, const Pareja &pareja);

// At the lines of the pair in Zembro.emu: drives that its paths name and that aren't there, and a missing
// DOSBox or Wine.
void RevisaOtroSistema(
    Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas, Revision &revision);

} // namespace companion
