// The languages that are delivered, and what their files may hold.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <ostream>
#include <vector>

namespace languages {

struct Language {
    const char *name;
    QString file; // under data/
    QString credit; // what the screens show of it and its author
};

// How GoogleTest shows a language.
void PrintTo(const Language &language, std::ostream *out);

const std::vector<Language> &delivered();

// Every key that a table of the program reads, sorted, padded with points to its columns.
QStringList knownKeys();

// Those of zembro, which shows its texts on a terminal.
QStringList companionKeys();

// The lines that set a text.
QStringList settings(const Language &language);

// Texts by key, the key without its points; of a key that comes twice the last, as the program has it.
QMap<QString, QString> texts(const Language &language);

} // namespace languages
