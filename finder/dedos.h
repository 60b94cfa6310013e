// Well-known emulators for DOS below the drives: data/emuladores_dos.tsv, which describes its own columns.
#pragma once

#include "finder/hallazgos.h"

#include "host/drives.h"

namespace finder {

struct FichaDOS {
    Ficha ficha;
    QString sistema;
    qint64 desde = 0; // bytes that its file may have
    qint64 hasta = 0;
};

// The table as it was delivered with the program.
QString TablaDOSDelPrograma();

// As LeeFichas.
std::vector<FichaDOS> LeeFichasDOS(const QString &texto);

// How far below a drive is looked: old directories aren't deep, and a drive may lead anywhere.
struct Alcance {
    int hondo = 6; // directories below the drive's place
    int entradas = 20000; // of a drive
};

struct EnUnidad {
    const FichaDOS *ficha;
    QString programa; // on the disk
    QString dicho; // "C:\EMUS\NES.EXE"; as it is on the disk where that can't be said
};

// Of each card the first program, drive by drive, those that lie less deep ahead. Links aren't followed, what
// is mounted below a drive isn't looked at, nor is a drive that is the whole disk.
std::vector<EnUnidad> RecorreUnidades(
    const std::vector<FichaDOS> &fichas, const std::vector<host::Drive> &unidades, Alcance alcance = {});

// Those of systems of the database whose names the catalogue hasn't got yet, as Busca.
std::vector<Hallazgo> HallazgosDOS(const core::Modulo &base, const core::Modulo &catalogo,
    const std::vector<EnUnidad> &vistos, const QString &directorio);

} // namespace finder
